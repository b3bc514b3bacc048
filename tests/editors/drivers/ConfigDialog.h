#pragma once

#include "resources/resource.h"
#include "tests/support/Controls.h"

// The template's, which no language file replaces.
constexpr wchar_t kAddConfigCaption[] = L"添加配置";

// The dialog that adds, renames or shows a configuration.
class ConfigDialog
{
public:
    explicit ConfigDialog(const Window& dialog) : m_dialog(dialog) {}

    const Window& Dialog() const { return m_dialog; }
    template <class Kind = EditField>
    Kind Field(int controlId) const
    {
        return m_dialog.Control<Kind>(controlId);
    }
    void Type(int controlId, const std::wstring& text) const { Field(controlId).Type(text); }

private:
    Window m_dialog;
};
