#include <afxwin.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cwchar>

namespace
{
[[noreturn]] void Refuse(CDataExchange* exchange, const wchar_t* prompt)
{
    AfxMessageBox(prompt);
    exchange->Fail();
}

CString ControlText(HWND control)
{
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

// An equal text is not set again: that would move the caret and tell of a change that is none.
void SetControlText(HWND control, const wchar_t* text)
{
    if (ControlText(control) != text)
        ::SetWindowText(control, text);
}

const wchar_t* SkipSpace(const wchar_t* text)
{
    while (afx::IsSpace(*text))
        ++text;
    return text;
}

bool IsBlank(const wchar_t* text)
{
    return *SkipSpace(text) == L'\0';
}

bool HasOnly(const wchar_t* text, const wchar_t* allowed)
{
    for (; *text; ++text)
        if (!std::wcschr(allowed, *text) && !afx::IsSpace(*text))
            return false;
    return true;
}

// The C library's locale is the process's: any module that shares the library may have set another point.
wchar_t DecimalPoint()
{
    CString half;
    half.Format(L"%.1f", 0.5);
    return half.GetString()[1];
}

std::wstring WithPoint(std::wstring text, wchar_t before, wchar_t after)
{
    std::replace(text.begin(), text.end(), before, after);
    return text;
}

std::wstring FloatText(float value)
{
    CString text;
    text.Format(L"%.*g", FLT_DIG, static_cast<double>(value));
    return WithPoint(text.GetString(), DecimalPoint(), L'.');
}
} // namespace

bool afx::ParseInt(const wchar_t* text, int& value)
{
    text = SkipSpace(text);
    wchar_t* end = nullptr;
    const long parsed = std::wcstol(text, &end, 10); // clamps by itself: long has 32 bits here
    if (end == text || !IsBlank(end))
        return false;
    value = static_cast<int>(parsed);
    return true;
}

bool afx::ParseFloat(const wchar_t* text, float& value)
{
    if (!HasOnly(text, L"0123456789+-.eE"))
        return false;
    const std::wstring number = WithPoint(SkipSpace(text), L'.', DecimalPoint());
    wchar_t* end = nullptr;
    const double parsed = std::wcstod(number.c_str(), &end);
    if (end == number.c_str() || !IsBlank(end) || !std::isfinite(parsed) || std::fabs(parsed) > FLT_MAX)
        return false;
    value = static_cast<float>(parsed);
    return true;
}

HWND CDataExchange::PrepareCtrl(int id)
{
    HWND control = nullptr;
    m_pDlgWnd->GetDlgItem(id, &control);
    if (!control)
        throw CNotSupportedException();
    m_hLastControl = control;
    m_bEditLastControl = false;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int id)
{
    HWND control = PrepareCtrl(id);
    m_bEditLastControl = true;
    return control;
}

void CDataExchange::Fail()
{
    // A control of a hidden page would swallow the keyboard unseen.
    if (m_bSaveAndValidate && ::IsWindowVisible(m_hLastControl))
    {
        ::SetFocus(m_hLastControl);
        if (m_bEditLastControl)
            ::SendMessage(m_hLastControl, EM_SETSEL, 0, -1);
    }
    throw CUserException();
}

void CDataExchange::LimitLastEdit(int chars)
{
    if (m_bEditLastControl)
        ::SendMessage(m_hLastControl, EM_LIMITTEXT, static_cast<WPARAM>(chars), 0);
}

void DDX_Text(CDataExchange* exchange, int id, int& value)
{
    HWND control = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        if (!afx::ParseInt(ControlText(control), value))
            Refuse(exchange, L"Please enter an integer.");
        return;
    }
    CString text;
    text.Format(L"%d", value);
    SetControlText(control, text);
}

void DDX_Text(CDataExchange* exchange, int id, float& value)
{
    HWND control = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        if (!afx::ParseFloat(ControlText(control), value))
            Refuse(exchange, L"Please enter a number.");
        return;
    }
    SetControlText(control, FloatText(value).c_str());
}

void DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    HWND control = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = ControlText(control);
    else
        SetControlText(control, value);
}

void DDX_Check(CDataExchange* exchange, int id, int& value)
{
    HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
    else
        ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(value >= 0 && value <= 2 ? value : 0), 0);
}

void DDX_Radio(CDataExchange* exchange, int id, int& value)
{
    HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = -1;
    int index = 0;
    do
    {
        if (!(::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON))
            continue;
        if (!exchange->m_bSaveAndValidate)
            ::SendMessage(control, BM_SETCHECK, index == value, 0);
        else if (::SendMessage(control, BM_GETCHECK, 0, 0))
            value = index;
        ++index;
    } while ((control = ::GetWindow(control, GW_HWNDNEXT)) != nullptr &&
             !(::GetWindowLong(control, GWL_STYLE) & WS_GROUP));
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (!control.m_hWnd)
        control.SubclassWindow(exchange->PrepareCtrl(id));
}

void DDV_MaxChars(CDataExchange* exchange, const CString& value, int chars)
{
    if (exchange->m_bSaveAndValidate && value.GetLength() > chars)
    {
        CString text;
        text.Format(L"Please enter no more than %d characters.", chars);
        Refuse(exchange, text);
    }
    if (!exchange->m_bSaveAndValidate)
        exchange->LimitLastEdit(chars);
}

void DDV_MinMaxInt(CDataExchange* exchange, int value, int min, int max)
{
    if (!exchange->m_bSaveAndValidate || (value >= min && value <= max))
        return;
    CString text;
    text.Format(L"Please enter an integer between %d and %d.", min, max);
    Refuse(exchange, text);
}
