#include "PropertyGridLayout.h"

#include <algorithm>
#include <cmath>

void CPropertyGridLayout::SetClient(int nWidth, int nHeight)
{
    m_nWidth = nWidth;
    m_nHeight = nHeight;
    ScrollTo(m_nTop);
}

void CPropertyGridLayout::SetRowCount(int nRows)
{
    m_nRows = nRows;
    ScrollTo(m_nTop);
}

int CPropertyGridLayout::RowsPerPage() const
{
    return std::max(1, (m_nHeight - m_nHeader) / m_nRowHeight);
}

void CPropertyGridLayout::ScrollTo(int nTopRow)
{
    m_nTop = std::max(0, std::min(nTopRow, m_nRows - RowsPerPage()));
}

void CPropertyGridLayout::ScrollIntoView(int nRow)
{
    if (nRow < m_nTop)
        ScrollTo(nRow);
    else if (nRow >= m_nTop + RowsPerPage())
        ScrollTo(nRow - RowsPerPage() + 1);
}

int CPropertyGridLayout::RowAt(int y) const
{
    if (y < m_nHeader || y >= m_nHeight)
        return -1;
    const int nRow = m_nTop + (y - m_nHeader) / m_nRowHeight;
    return nRow < m_nRows ? nRow : -1;
}

RECT CPropertyGridLayout::RowRect(int nRow) const
{
    const int y = m_nHeader + (nRow - m_nTop) * m_nRowHeight;
    return {0, y, m_nWidth, y + m_nRowHeight};
}

RECT CPropertyGridLayout::NameRect(int nRow) const
{
    RECT rect = RowRect(nRow);
    rect.right = SplitX();
    return rect;
}

RECT CPropertyGridLayout::ValueRect(int nRow) const
{
    RECT rect = RowRect(nRow);
    rect.left = SplitX();
    return rect;
}

RECT CPropertyGridLayout::RowsRect() const
{
    return {0, m_nHeader, m_nWidth, m_nHeight};
}

int CPropertyGridLayout::SplitX() const
{
    return ClampSplit(static_cast<int>(std::lround(m_dSplit * m_nWidth)));
}

void CPropertyGridLayout::SetSplitX(int x)
{
    if (m_nWidth > 0)
        m_dSplit = static_cast<double>(ClampSplit(x)) / m_nWidth;
}

int CPropertyGridLayout::ClampSplit(int x) const
{
    // A column never becomes so narrow that its divider or drop-down button cannot be reached.
    const int nMin = 2 * m_nRowHeight;
    return std::max(nMin, std::min(x, m_nWidth - nMin));
}
