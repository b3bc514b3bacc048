#include "PropertyGridLayout.h"

#include <algorithm>
#include <cmath>

void CPropertyGridLayout::SetClient(int width, int height)
{
    m_nWidth = width;
    m_nHeight = height;
    ScrollTo(m_nTop);
}

void CPropertyGridLayout::SetRowCount(int rows)
{
    m_nRows = rows;
    ScrollTo(m_nTop);
}

int CPropertyGridLayout::RowsPerPage() const
{
    return std::max(1, (m_nHeight - m_nHeader) / m_nRowHeight);
}

void CPropertyGridLayout::ScrollTo(int topRow)
{
    m_nTop = std::max(0, std::min(topRow, m_nRows - RowsPerPage()));
}

void CPropertyGridLayout::ScrollIntoView(int row)
{
    if (row < m_nTop)
        ScrollTo(row);
    else if (row >= m_nTop + RowsPerPage())
        ScrollTo(row - RowsPerPage() + 1);
}

int CPropertyGridLayout::RowAt(int y) const
{
    if (y < m_nHeader || y >= m_nHeight)
        return -1;
    const int row = m_nTop + (y - m_nHeader) / m_nRowHeight;
    return row < m_nRows ? row : -1;
}

RECT CPropertyGridLayout::RowRect(int row) const
{
    const int y = m_nHeader + (row - m_nTop) * m_nRowHeight;
    return {0, y, m_nWidth, y + m_nRowHeight};
}

RECT CPropertyGridLayout::NameRect(int row) const
{
    RECT rect = RowRect(row);
    rect.right = SplitX();
    return rect;
}

RECT CPropertyGridLayout::ValueRect(int row) const
{
    RECT rect = RowRect(row);
    rect.left = SplitX();
    return rect;
}

RECT CPropertyGridLayout::RowsRect() const
{
    return {0, m_nHeader, m_nWidth, m_nHeight};
}

int CPropertyGridLayout::SplitX() const
{
    return ClampSplit(static_cast<int>(std::lround(m_fSplit * m_nWidth)));
}

void CPropertyGridLayout::SetSplitX(int x)
{
    if (m_nWidth > 0)
        m_fSplit = static_cast<double>(ClampSplit(x)) / m_nWidth;
}

int CPropertyGridLayout::ClampSplit(int x) const
{
    // A column never becomes so narrow that its divider or drop-down button cannot be reached.
    const int min = 2 * m_nRowHeight;
    return std::max(min, std::min(x, m_nWidth - min));
}
