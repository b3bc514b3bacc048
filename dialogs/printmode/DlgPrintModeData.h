#pragma once

#include "dialogs/base/DlgBase.h"

#include <afxdialogex.h>
#include <afxpropertygridctrl.h>

#include <cstdint>
#include <memory>

class IHeadLayout;
class IPrintMode;

// Second page of the print-mode editor: the data processing mode of each print-head layout. A choice is written to the
// host at once.
class CDlgPrintModeData : public CDialogEx, public CDlgBase
{
public:
    CDlgPrintModeData();

    // The mode stays the host's; null empties the grid.
    void AttachMode(IPrintMode* mode);
    void Rebuild();

    int ApplyLanguage() override;

protected:
    BOOL OnInitDialog() override;
    LRESULT OnPropertyChanged(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void CreateGrid();
    std::unique_ptr<CMFCPropertyGridProperty> MakeProperty(IHeadLayout& head, int row);
    void SetOptions(CMFCPropertyGridProperty& property, IHeadLayout& head, std::uint32_t row);

    IPrintMode* m_pMode = nullptr;
    CMFCPropertyGridCtrl m_grid;
};
