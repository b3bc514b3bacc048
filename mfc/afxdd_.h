// Dialog data exchange (DDX_) and validation (DDV_).
// Supported: int, float and string edits, check boxes, radio groups, control members, length and range checks.
// Not supported: list and combo values (the controls are used as members), times, currencies.
// Differs: numbers are parsed strictly (no trailing junk); an int beyond 32 bits is clamped.
#pragma once

#include <afxstr.h>

class CWnd;

// What CDataExchange::Fail throws; CWnd::UpdateData swallows it.
class CUserException
{
};

// What the exchange throws for a control that the dialog does not have.
class CNotSupportedException
{
};

class CDataExchange
{
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate) : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);

    // Gives the focus back to the control prepared last, selects an edit's text, and throws.
    [[noreturn]] void Fail();

    // Keeps the operator from typing more; a longer text set by the program stays whole.
    void LimitLastEdit(int nChars);

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the members
    CWnd* m_pDlgWnd;

private:
    HWND m_hWndLastControl = nullptr;
    bool m_bEditLastControl = false;
};

void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
void DDX_Text(CDataExchange* pDX, int nIDC, float& value);
void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
void DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

void DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);

namespace afx
{
// An optional sign and decimal digits, blanks around allowed; beyond 32 bits the nearest value.
bool ParseInt(LPCTSTR pszText, int& value);
// A decimal number with '.' and optional exponent, blanks around allowed; no hexadecimal, no "nan" or "inf".
bool ParseFloat(LPCTSTR pszText, float& value);
} // namespace afx
