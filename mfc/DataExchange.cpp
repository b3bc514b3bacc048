#include <afxwin.h>

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cwchar>
#include <cwctype>

namespace
{
[[noreturn]] void Refuse(CDataExchange* pDX, LPCTSTR pszPrompt)
{
    AfxMessageBox(pszPrompt);
    pDX->Fail();
}

CString ControlText(HWND hWnd)
{
    CString str;
    CWnd::FromHandle(hWnd)->GetWindowText(str);
    return str;
}

// An equal text is not set again: that would move the caret and tell of a change that is none.
void SetControlText(HWND hWnd, LPCTSTR pszText)
{
    if (ControlText(hWnd) != pszText)
        ::SetWindowText(hWnd, pszText);
}

bool IsBlank(LPCTSTR psz)
{
    while (std::iswspace(static_cast<wint_t>(*psz)))
        ++psz;
    return *psz == L'\0';
}

bool HasOnly(LPCTSTR psz, LPCTSTR pszAllowed)
{
    for (; *psz; ++psz)
        if (!std::wcschr(pszAllowed, *psz) && !std::iswspace(static_cast<wint_t>(*psz)))
            return false;
    return true;
}
} // namespace

bool afx::ParseInt(LPCTSTR pszText, int& value)
{
    wchar_t* pszEnd = nullptr;
    const long nParsed = std::wcstol(pszText, &pszEnd, 10); // clamps by itself: long has 32 bits here
    if (pszEnd == pszText || !IsBlank(pszEnd))
        return false;
    value = static_cast<int>(nParsed);
    return true;
}

bool afx::ParseFloat(LPCTSTR pszText, float& value)
{
    if (!HasOnly(pszText, L"0123456789+-.eE"))
        return false;
    wchar_t* pszEnd = nullptr;
    const double dParsed = std::wcstod(pszText, &pszEnd);
    if (pszEnd == pszText || !IsBlank(pszEnd) || !std::isfinite(dParsed) || std::fabs(dParsed) > FLT_MAX)
        return false;
    value = static_cast<float>(dParsed);
    return true;
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    HWND hWnd;
    m_pDlgWnd->GetDlgItem(nIDC, &hWnd);
    if (!hWnd)
        throw CNotSupportedException();
    m_hWndLastControl = hWnd;
    m_bEditLastControl = false;
    return hWnd;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    HWND hWnd = PrepareCtrl(nIDC);
    m_bEditLastControl = true;
    return hWnd;
}

void CDataExchange::Fail()
{
    // A control of a hidden page would swallow the keyboard unseen.
    if (m_bSaveAndValidate && ::IsWindowVisible(m_hWndLastControl))
    {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessage(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    throw CUserException();
}

void CDataExchange::LimitLastEdit(int nChars)
{
    if (m_bEditLastControl)
        ::SendMessage(m_hWndLastControl, EM_LIMITTEXT, static_cast<WPARAM>(nChars), 0);
}

void DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        if (!afx::ParseInt(ControlText(hWnd), value))
            Refuse(pDX, L"Please enter an integer.");
        return;
    }
    CString str;
    str.Format(L"%d", value);
    SetControlText(hWnd, str);
}

void DDX_Text(CDataExchange* pDX, int nIDC, float& value)
{
    HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        if (!afx::ParseFloat(ControlText(hWnd), value))
            Refuse(pDX, L"Please enter a number.");
        return;
    }
    CString str;
    str.Format(L"%.*g", FLT_DIG, static_cast<double>(value));
    SetControlText(hWnd, str);
}

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ControlText(hWnd);
    else
        SetControlText(hWnd, value);
}

void DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(hWnd, BM_GETCHECK, 0, 0));
    else
        ::SendMessage(hWnd, BM_SETCHECK, static_cast<WPARAM>(value >= 0 && value <= 2 ? value : 0), 0);
}

void DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int nIndex = 0;
    do
    {
        if (!(::SendMessage(hWnd, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON))
            continue;
        if (!pDX->m_bSaveAndValidate)
            ::SendMessage(hWnd, BM_SETCHECK, nIndex == value, 0);
        else if (::SendMessage(hWnd, BM_GETCHECK, 0, 0))
            value = nIndex;
        ++nIndex;
    } while ((hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) != nullptr && !(::GetWindowLong(hWnd, GWL_STYLE) & WS_GROUP));
}

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (!rControl.m_hWnd)
        rControl.SubclassWindow(pDX->PrepareCtrl(nIDC));
}

void DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars)
{
    if (pDX->m_bSaveAndValidate && value.GetLength() > nChars)
    {
        CString str;
        str.Format(L"Please enter no more than %d characters.", nChars);
        Refuse(pDX, str);
    }
    if (!pDX->m_bSaveAndValidate)
        pDX->LimitLastEdit(nChars);
}

void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal)
{
    if (!pDX->m_bSaveAndValidate || (value >= minVal && value <= maxVal))
        return;
    CString str;
    str.Format(L"Please enter an integer between %d and %d.", minVal, maxVal);
    Refuse(pDX, str);
}
