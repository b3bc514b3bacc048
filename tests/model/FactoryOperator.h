#pragma once

#include "tests/editors/drivers/FactoryEditor.h"
#include "tests/model/FactoryModel.h"
#include "tests/model/SchemeOperator.h"

class FactoryOperator : public SchemeOperator
{
public:
    FactoryOperator(const FactoryEditor& editor, FactoryModel& model, SeededRun& run);

protected:
    void ActBesides() override;
    void WorkOnOther(int dialog) override;

private:
    void UseMenu();
    void RightClickBeside();
    int RowAtHeight(LONG y) const;
    std::vector<int> ChooseConfigs(const ListBox& list);

    const FactoryEditor& m_editor;
    FactoryModel& m_model;
};
