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
    CDataExchange(CWnd* dialog, BOOL saveAndValidate) : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog) {}

    HWND PrepareCtrl(int id);
    HWND PrepareEditCtrl(int id);

    // Gives the focus back to the control prepared last, selects an edit's text, and throws.
    [[noreturn]] void Fail();

    // Keeps the operator from typing more; a longer text set by the program stays whole.
    void LimitLastEdit(int chars);

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the members
    CWnd* m_pDlgWnd;

private:
    HWND m_hLastControl = nullptr;
    bool m_bEditLastControl = false;
};

void DDX_Text(CDataExchange* exchange, int id, int& value);
void DDX_Text(CDataExchange* exchange, int id, float& value);
void DDX_Text(CDataExchange* exchange, int id, CString& value);
void DDX_Check(CDataExchange* exchange, int id, int& value);
void DDX_Radio(CDataExchange* exchange, int id, int& value);
void DDX_Control(CDataExchange* exchange, int id, CWnd& control);

void DDV_MaxChars(CDataExchange* exchange, const CString& value, int chars);
void DDV_MinMaxInt(CDataExchange* exchange, int value, int min, int max);

namespace afx
{
// An optional sign and decimal digits, blanks around allowed; beyond 32 bits the nearest value.
bool ParseInt(const wchar_t* text, int& value);
// A decimal number with '.', whatever the C library's locale, and optional exponent, blanks around allowed; no
// hexadecimal, no "nan" or "inf".
bool ParseFloat(const wchar_t* text, float& value);
} // namespace afx
