#pragma once

#include "dialogs/base/DlgBase.h"

#include <afxbutton.h>
#include <afxcmn.h>
#include <afxdialogex.h>

#include <array>
#include <cstdint>

class ICustomEclosion;
class ICustomEclosionSet;
class IEclosionElement;
class IEclosionMode;

// Designs a custom eclosion: a range and up to three modes of up to two elements each. It edits the host's definition
// in place while the operator works; Save asks the host to keep the set.
class CDlgPrintSchemeCustomEclosion : public CDialogEx, public CDlgBase
{
public:
    CDlgPrintSchemeCustomEclosion();

    int ApplyLanguage() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    void OnPaint();
    void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void OnAddMode();
    void OnDeleteMode();
    void OnAddElement();
    void OnDeleteElement();
    void OnModeChosen();

    DECLARE_MESSAGE_MAP()

private:
    // One element: its controls, and what its preview shows.
    struct ElementView
    {
        int groupId;
        int widthLabelId;
        int widthId;
        int heightLabelId;
        int heightId;
        int frameId;
        CSliderCtrl sliderWidth{};
        CSliderCtrl sliderHeight{};
        bool isShown = false;
        int width = 0;
        int height = 0;
        RECT preview{};
    };

    void InitTrackbars();
    void Load();
    void ShowCurrentMode();
    void ShowElements(IEclosionMode* mode);
    void ShowElement(ElementView& view, IEclosionElement* element, bool show);
    void ShowRadios(ICustomEclosion* eclosion);
    void EnableEditing();
    void EnableWithoutSet();
    void MoveRange();
    void MoveElement(ElementView& view, CSliderCtrl& slider);
    void PaintPreview(CDC& dc, const ElementView& view) const;

    // The definition that the dialog edits, and the one that the set names as its current one: the same, once loaded.
    ICustomEclosion* Eclosion() const;
    ICustomEclosion* CurrentEclosion() const;

    CMFCButton m_btnAddMode;
    CMFCButton m_btnDelMode;
    CMFCButton m_btnDelElement;
    CMFCButton m_btnAddElement;
    CMFCButton m_btnSave;
    CMFCButton m_btnCancel;
    CSliderCtrl m_sliderRange;
    std::array<ElementView, 2> m_elements;
    int m_nRange = 0;
    int m_nCurMode = 0;
    bool m_bAllowLockedEdit = true;
    bool m_bSaving = false;
    ICustomEclosionSet* m_pSet = nullptr; // the host's
};
