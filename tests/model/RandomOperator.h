#pragma once

#include "tests/editors/drivers/EditorWindow.h"
#include "tests/model/ConfigFields.h"
#include "tests/model/EditorModel.h"
#include "tests/model/SeededRun.h"

#include <map>

// An operator who does whatever comes to mind, on an editor's real windows. After each action the model hears what the
// controls told the dialogs; then the host's data and all that the controls show must be what the model has.
class RandomOperator
{
public:
    RandomOperator(const EditorWindow& editor, EditorModel& model, SeededRun& run);
    virtual ~RandomOperator() = default;

    // Until the editor has closed.
    void Work();

protected:
    virtual void Act() = 0;
    // A dialog has opened over the editor.
    virtual void WorkOn(int dialog) = 0;

    void Watch(const Window& dialog, int resourceId);
    // Tells the diary, acts, and sees that everything is as the model has it.
    void Do(const std::string& what, const std::function<void()>& gesture);
    // What the dialogs have to say is heard and their prompts are answered; nothing is compared.
    void Listen();
    // The texts of fields have changed by the dialogs' own doing.
    void HearAllButTexts();
    void Compare();
    bool HasEnded() const { return m_model.HasEnded(); }

    // Tells the diary only.
    void Note(const std::string& what) { m_run.diary.Write(what); }

    static ConfigFields FieldsOf(const ConfigDialog& dialog);
    void RequireFields(const ConfigDialog& dialog, const ConfigFields& wanted) const;
    // By Cancel, Esc or the close box.
    void CloseDialog(const Window& dialog);

    static bool CanUse(const Window& control) { return control.IsVisible() && control.IsEnabled(); }
    void Press(const Window& dialog, int button);
    void UseList(const ListBox& list);
    void DoubleClickRow(const ListBox& list);
    void UseCombo(const ComboBox& combo);
    void PickRow(const ComboBox& combo, int row);
    void Type(const EditField& field, const std::wstring& text);
    void PressAnyKey();
    void LeaveEditor();

    // What may be typed for a name.
    static const Texts& Names();

    Operator& Op() { return m_editor.Op(); }
    Chance& Luck() { return m_run.chance; }
    template <class T>
    T Either(T one, T other)
    {
        return Luck().OneIn(2) ? one : other;
    }

private:
    void LetGo();
    void Hear();
    std::string DisplayDifference() const;
    std::wstring Found(const Shown& shown) const;

    const EditorWindow& m_editor;
    EditorModel& m_model;
    SeededRun& m_run;
    std::map<int, HWND> m_dialogs;
};
