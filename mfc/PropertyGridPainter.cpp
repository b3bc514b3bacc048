#include <afxpropertygridctrl.h>

#include "GdiObjects.h"

CPropertyGridPainter::CPropertyGridPainter(HDC hdc, const CPropertyGridLayout& layout, const PropertyGridLook& look)
    : m_hdc(hdc), m_layout(layout), m_look(look)
{
}

void CPropertyGridPainter::DrawBackground() const
{
    Fill(m_layout.RowsRect(), m_look.clrBackground);
}

void CPropertyGridPainter::DrawRow(int nRow, const CMFCPropertyGridProperty& property, bool bSelected) const
{
    DrawName(nRow, property, bSelected);
    DrawValue(nRow, property, bSelected);
    DrawLines(nRow);
}

int CPropertyGridPainter::StripWidth() const
{
    return m_look.bStrip ? ::GetSystemMetrics(SM_CXSMICON) / 2 : 0;
}

void CPropertyGridPainter::DrawName(int nRow, const CMFCPropertyGridProperty& property, bool bSelected) const
{
    RECT cell = m_layout.NameRect(nRow);
    RECT strip = cell;
    strip.right = cell.left = cell.left + StripWidth();
    Fill(strip, m_look.clrStrip);
    COLORREF clrText = m_look.bEnabled ? m_look.clrText : ::GetSysColor(COLOR_GRAYTEXT);
    if (bSelected && m_look.bEnabled)
    {
        Fill(cell, m_look.bFocused ? ::GetSysColor(COLOR_HIGHLIGHT) : m_look.clrStrip);
        clrText = m_look.bFocused ? ::GetSysColor(COLOR_HIGHLIGHTTEXT) : clrText;
    }
    DrawText(cell, property.GetName(), property.GetName().GetLength(), clrText, m_look.hFont);
}

void CPropertyGridPainter::DrawValue(int nRow, const CMFCPropertyGridProperty& property, bool bSelected) const
{
    RECT cell = m_layout.ValueRect(nRow);
    --cell.bottom; // the row's line
    if (bSelected && m_look.bEnabled && !property.GetOptions().empty())
    {
        RECT button = cell;
        button.left = cell.right = cell.right - (cell.bottom - cell.top);
        ::DrawFrameControl(m_hdc, &button, DFC_SCROLL, DFCS_SCROLLCOMBOBOX);
    }
    const COLORREF clrText = m_look.bEnabled ? m_look.clrText : ::GetSysColor(COLOR_GRAYTEXT);
    const bool bBold = m_look.bMarkModified && property.IsModified();
    DrawText(cell, property.GetValue(), property.GetValue().GetLength(), clrText,
             bBold ? m_look.hBoldFont : m_look.hFont);
    if (bSelected && m_look.bFocused)
    {
        ++cell.left; // the line between the columns
        ::SetTextColor(m_hdc, m_look.clrText);
        ::SetBkColor(m_hdc, m_look.clrBackground);
        ::DrawFocusRect(m_hdc, &cell);
    }
}

void CPropertyGridPainter::DrawLines(int nRow) const
{
    const RECT row = m_layout.RowRect(nRow);
    const RECT cell = m_layout.ValueRect(nRow);
    Fill({StripWidth(), row.bottom - 1, row.right, row.bottom}, m_look.clrLine);
    Fill({cell.left, cell.top, cell.left + 1, cell.bottom}, m_look.clrLine);
}

void CPropertyGridPainter::DrawText(const RECT& cell, const wchar_t* pszText, int nLength, COLORREF clrText,
                                    HFONT hFont) const
{
    RECT text = cell;
    ::InflateRect(&text, -2 * ::GetSystemMetrics(SM_CXEDGE), 0);
    const CSelectedObject font(m_hdc, hFont);
    ::SetBkMode(m_hdc, TRANSPARENT);
    ::SetTextColor(m_hdc, clrText);
    ::DrawTextW(m_hdc, pszText, nLength, &text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

void CPropertyGridPainter::Fill(const RECT& rect, COLORREF clr) const
{
    ::SetDCBrushColor(m_hdc, clr);
    ::FillRect(m_hdc, &rect, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}
