#pragma once

#include "tests/editors/drivers/SchemeEditor.h"
#include "tests/model/RandomOperator.h"
#include "tests/model/SchemeEditorModel.h"

// What an operator does in the factory and the user editor alike.
class SchemeOperator : public RandomOperator
{
protected:
    SchemeOperator(const SchemeEditor& editor, SchemeEditorModel& model, SeededRun& run, int resourceId);

    void Act() override;
    void WorkOn(int dialog) override;
    // What only one of the editors offers.
    virtual void ActBesides() = 0;
    virtual void WorkOnOther(int dialog) = 0;

private:
    void UseLists();
    void UsePage();
    void UseControls(SchemePage page);
    void UseEclosionPage();
    void UseSlider(const Trackbar& slider);
    void Move(const Trackbar& slider);
    void ClickCheck(const Window& check);
    void ViewConfig();
    void DesignEclosion();
    void ActOnEclosion(const Window& dialog);

    const SchemeEditor& m_editor;
    SchemeEditorModel& m_model;
};
