#pragma once

#include "refhost/Machine.h"
#include "tests/model/Notice.h"

#include <string>
#include <vector>

using Texts = std::vector<std::wstring>;

// What a person can see of a control.
enum class Aspect
{
    Row,      // of a combo box or a list box, -1 for none
    Text,     // of an edit field
    Rows,     // all texts of a list box
    Position, // of a trackbar
    Checked,
    Shown // whether it is to be seen at all
};

struct Shown
{
    int dialog;
    int control;
    Aspect aspect;
    int number;
    Texts texts;
};

// For comparing and for telling.
std::wstring Joined(const Texts& texts);

Shown ShownRow(int dialog, int control, int row);
Shown ShownText(int dialog, int control, const std::wstring& text);
Shown ShownRows(int dialog, int control, const Texts& rows);

// What an editor owes its host and its operator: it hears what the controls tell the dialogs, and knows from that what
// the host's data must then be, what the controls must show, and what must be asked of the host.
class EditorModel
{
public:
    virtual ~EditorModel() = default;

    virtual void Hear(const Notice& notice) = 0;
    // What must be to be seen of the controls whose state is the dialogs' doing.
    virtual std::vector<Shown> Display() const = 0;

    const refhost::Machine& Machine() const { return m_machine; }
    // As the host's log has them.
    const std::vector<std::string>& Saves() const { return m_saves; }
    bool HasEnded() const { return m_hasEnded; }

    // Message boxes that must have opened and were not answered yet.
    int OpenPrompts() const { return m_prompts; }
    void PromptAnswered() { --m_prompts; }

    // The dialog over the editor that must have opened, 0 for none.
    int OpenDialog() const { return m_dialog; }

protected:
    explicit EditorModel(const refhost::Machine& machine) : m_machine(machine) {}

    void Prompt() { ++m_prompts; }
    void Open(int dialog) { m_dialog = dialog; }
    void Closed() { m_dialog = 0; }
    void Save(const std::string& request) { m_saves.push_back("IHostControl." + request); }
    void End() { m_hasEnded = true; }

    std::wstring Wide(const std::string& narrow) const;
    std::string Narrow(const std::wstring& wide) const;

    refhost::Machine m_machine;

private:
    std::vector<std::string> m_saves;
    int m_prompts = 0;
    int m_dialog = 0;
    bool m_hasEnded = false;
};
