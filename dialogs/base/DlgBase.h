#pragma once

#include <afxwin.h>

#include <string>

// One control and the language key of its text.
struct ControlText
{
    int controlId;
    const wchar_t* key;
    const wchar_t* defaultText;
};

// Second base of every dialog and page with texts from the language file; the first is its framework class.
class CDlgBase
{
public:
    CDlgBase() = default;
    virtual ~CDlgBase() = default;
    CDlgBase(const CDlgBase&) = delete;
    CDlgBase& operator=(const CDlgBase&) = delete;

    // Sets the texts of the dialog's controls; returns 1.
    virtual int ApplyLanguage() { return 1; }

protected:
    // To be called in OnInitDialog, straight after the framework's own part: from here on the owner's texts are
    // looked up in the section, and ApplyLanguage has set them.
    void InitLanguage(const wchar_t* section, CWnd* owner);

    CString GetLanguageText(const wchar_t* key, const wchar_t* defaultText) const;
    // Both return 0 and change nothing without an owner; a control that the dialog does not have is passed over too.
    int SetControlText(int controlId, const wchar_t* key, const wchar_t* defaultText);
    int ApplyTitle();

    template <size_t N>
    void SetControlTexts(const ControlText (&texts)[N])
    {
        for (const ControlText& text : texts)
            SetControlText(text.controlId, text.key, text.defaultText);
    }

private:
    std::wstring m_strSection;
    CWnd* m_pOwner = nullptr;
};
