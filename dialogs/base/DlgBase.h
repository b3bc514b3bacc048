#pragma once

#include <afxwin.h>

// One control and the language key of its text.
struct ControlText
{
    int nControlId;
    LPCTSTR pszKey;
    LPCTSTR pszDefault;
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
    void InitLanguage(LPCTSTR pszSection, CWnd* pOwner);

    CString GetLanguageText(LPCTSTR pszKey, LPCTSTR pszDefault) const;
    // Both return 0 and change nothing without an owner; a control that the dialog does not have is passed over too.
    int SetControlText(int nControlId, LPCTSTR pszKey, LPCTSTR pszDefault);
    int ApplyTitle();

    template <size_t N>
    void SetControlTexts(const ControlText (&texts)[N])
    {
        for (const ControlText& text : texts)
            SetControlText(text.nControlId, text.pszKey, text.pszDefault);
    }

private:
    CString m_strSection;
    CWnd* m_pOwner = nullptr;
};

// Enables or disables a control. A control that has the focus hands it on first: a disabled one would leave the
// keyboard dead.
void EnableControl(CWnd& control, bool bEnable);
void ShowControl(CWnd& control, bool bShow);
// A text that stands there already is not set again: that would draw it again too.
void ShowText(CWnd& control, LPCTSTR pszText);
