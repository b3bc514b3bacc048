#include <afxpropertygridctrl.h>

#include "GdiObjects.h"

CPropertyGridPainter::CPropertyGridPainter(HDC context, const CPropertyGridLayout& layout, const PropertyGridLook& look)
    : m_hContext(context), m_layout(layout), m_look(look)
{
}

void CPropertyGridPainter::DrawBackground() const
{
    Fill(m_layout.RowsRect(), m_look.background);
}

void CPropertyGridPainter::DrawRow(int row, const CMFCPropertyGridProperty& property, bool selected) const
{
    DrawName(row, property, selected);
    DrawValue(row, property, selected);
    DrawLines(row);
}

int CPropertyGridPainter::StripWidth() const
{
    return m_look.hasStrip ? ::GetSystemMetrics(SM_CXSMICON) / 2 : 0;
}

void CPropertyGridPainter::DrawName(int row, const CMFCPropertyGridProperty& property, bool selected) const
{
    RECT cell = m_layout.NameRect(row);
    RECT strip = cell;
    strip.right = cell.left = cell.left + StripWidth();
    Fill(strip, m_look.strip);
    COLORREF colour = m_look.enabled ? m_look.text : ::GetSysColor(COLOR_GRAYTEXT);
    if (selected && m_look.enabled)
    {
        Fill(cell, m_look.focused ? ::GetSysColor(COLOR_HIGHLIGHT) : m_look.strip);
        colour = m_look.focused ? ::GetSysColor(COLOR_HIGHLIGHTTEXT) : colour;
    }
    DrawText(cell, property.GetName(), property.GetName().GetLength(), colour, m_look.font);
}

void CPropertyGridPainter::DrawValue(int row, const CMFCPropertyGridProperty& property, bool selected) const
{
    RECT cell = m_layout.ValueRect(row);
    --cell.bottom; // the row's line
    if (selected && m_look.enabled && !property.GetOptions().empty())
    {
        RECT button = cell;
        button.left = cell.right = cell.right - (cell.bottom - cell.top);
        ::DrawFrameControl(m_hContext, &button, DFC_SCROLL, DFCS_SCROLLCOMBOBOX);
    }
    const COLORREF colour = m_look.enabled ? m_look.text : ::GetSysColor(COLOR_GRAYTEXT);
    const bool bold = m_look.marksModified && property.IsModified();
    DrawText(cell, property.GetValue(), property.GetValue().GetLength(), colour, bold ? m_look.boldFont : m_look.font);
    if (selected && m_look.focused)
    {
        ++cell.left; // the line between the columns
        ::SetTextColor(m_hContext, m_look.text);
        ::SetBkColor(m_hContext, m_look.background);
        ::DrawFocusRect(m_hContext, &cell);
    }
}

void CPropertyGridPainter::DrawLines(int row) const
{
    const RECT whole = m_layout.RowRect(row);
    const RECT cell = m_layout.ValueRect(row);
    Fill({StripWidth(), whole.bottom - 1, whole.right, whole.bottom}, m_look.line);
    Fill({cell.left, cell.top, cell.left + 1, cell.bottom}, m_look.line);
}

void CPropertyGridPainter::DrawText(const RECT& cell, const wchar_t* text, int length, COLORREF colour,
                                    HFONT font) const
{
    RECT inside = cell;
    ::InflateRect(&inside, -2 * ::GetSystemMetrics(SM_CXEDGE), 0);
    const CSelectedObject selected(m_hContext, font);
    ::SetBkMode(m_hContext, TRANSPARENT);
    ::SetTextColor(m_hContext, colour);
    ::DrawTextW(m_hContext, text, length, &inside, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

void CPropertyGridPainter::Fill(const RECT& rect, COLORREF colour) const
{
    ::SetDCBrushColor(m_hContext, colour);
    ::FillRect(m_hContext, &rect, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}
