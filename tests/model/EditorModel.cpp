#include "tests/model/EditorModel.h"

#include "tests/model/HostText.h"

std::wstring EditorModel::Wide(const std::string& narrow) const
{
    return ToWide(narrow, m_machine.codePage);
}

std::string EditorModel::Narrow(const std::wstring& wide) const
{
    return ToNarrow(wide, m_machine.codePage);
}

std::wstring Joined(const Texts& texts)
{
    std::wstring joined;
    for (const std::wstring& text : texts)
        joined += L"|" + text;
    return joined;
}

Shown ShownRow(int dialog, int control, int row)
{
    return {dialog, control, Aspect::Row, row, {}};
}

Shown ShownText(int dialog, int control, const std::wstring& text)
{
    return {dialog, control, Aspect::Text, 0, {text}};
}

Shown ShownRows(int dialog, int control, const Texts& rows)
{
    return {dialog, control, Aspect::Rows, 0, rows};
}
