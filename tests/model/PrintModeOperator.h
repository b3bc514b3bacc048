#pragma once

#include "tests/editors/drivers/PrintModeEditor.h"
#include "tests/model/PrintModeModel.h"
#include "tests/model/RandomOperator.h"

class PrintModeOperator : public RandomOperator
{
public:
    PrintModeOperator(const PrintModeEditor& editor, PrintModeModel& model, SeededRun& run);

protected:
    void Act() override;
    void WorkOn(int dialog) override;

private:
    void UseLists();
    void UseCommonPage();
    void UseDataPage();
    bool OpenTab(int tab);
    void ChooseDataMode(const PropertyGrid& grid, int row);
    void TypeInto(const ConfigDialog& dialog, int field, const std::wstring& text);
    bool Confirm(const ConfigDialog& dialog);
    void Cancel(const ConfigDialog& dialog);

    const PrintModeEditor& m_editor;
    PrintModeModel& m_model;
};
