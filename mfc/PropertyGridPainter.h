// Draws a property grid's rows. A parameter object of looks and the layout are all it knows of the grid.
#pragma once

#include "PropertyGridLayout.h"

class CMFCPropertyGridProperty;

struct PropertyGridLook
{
    COLORREF clrBackground = ::GetSysColor(COLOR_WINDOW);
    COLORREF clrText = ::GetSysColor(COLOR_WINDOWTEXT);
    COLORREF clrStrip = ::GetSysColor(COLOR_BTNFACE);
    COLORREF clrLine = ::GetSysColor(COLOR_BTNFACE);
    HFONT hFont = nullptr;
    HFONT hBoldFont = nullptr;
    bool bStrip = false;
    bool bMarkModified = false;
    bool bEnabled = true;
    bool bFocused = false;
};

class CPropertyGridPainter
{
public:
    CPropertyGridPainter(HDC hdc, const CPropertyGridLayout& layout, const PropertyGridLook& look);

    void DrawBackground() const;
    void DrawRow(int nRow, const CMFCPropertyGridProperty& property, bool bSelected) const;

private:
    void DrawName(int nRow, const CMFCPropertyGridProperty& property, bool bSelected) const;
    void DrawValue(int nRow, const CMFCPropertyGridProperty& property, bool bSelected) const;
    void DrawLines(int nRow) const;
    void DrawText(const RECT& cell, const wchar_t* pszText, int nLength, COLORREF clrText, HFONT hFont) const;
    void Fill(const RECT& rect, COLORREF clr) const;
    int StripWidth() const;

    HDC m_hdc;
    const CPropertyGridLayout& m_layout;
    const PropertyGridLook& m_look;
};
