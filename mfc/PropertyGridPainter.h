// Draws a property grid's rows. A parameter object of looks and the layout are all it knows of the grid.
#pragma once

#include "PropertyGridLayout.h"

class CMFCPropertyGridProperty;

struct PropertyGridLook
{
    COLORREF background = ::GetSysColor(COLOR_WINDOW);
    COLORREF text = ::GetSysColor(COLOR_WINDOWTEXT);
    COLORREF strip = ::GetSysColor(COLOR_BTNFACE);
    COLORREF line = ::GetSysColor(COLOR_BTNFACE);
    HFONT font = nullptr;
    HFONT boldFont = nullptr;
    bool hasStrip = false;
    bool marksModified = false;
    bool enabled = true;
    bool focused = false;
};

class CPropertyGridPainter
{
public:
    CPropertyGridPainter(HDC context, const CPropertyGridLayout& layout, const PropertyGridLook& look);

    void DrawBackground() const;
    void DrawRow(int row, const CMFCPropertyGridProperty& property, bool selected) const;

private:
    void DrawName(int row, const CMFCPropertyGridProperty& property, bool selected) const;
    void DrawValue(int row, const CMFCPropertyGridProperty& property, bool selected) const;
    void DrawLines(int row) const;
    void DrawText(const RECT& cell, const wchar_t* text, int length, COLORREF colour, HFONT font) const;
    void Fill(const RECT& rect, COLORREF colour) const;
    int StripWidth() const;

    HDC m_hContext;
    const CPropertyGridLayout& m_layout;
    const PropertyGridLook& m_look;
};
