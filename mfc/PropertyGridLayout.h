// Where the rows and cells of a property grid lie. Plain arithmetic, so that it can be tested without a window.
#pragma once

#include <windows.h>

class CPropertyGridLayout
{
public:
    void SetClient(int width, int height);
    void SetHeaderHeight(int height) { m_nHeader = height; }
    void SetRowHeight(int height) { m_nRowHeight = height; }
    void SetRowCount(int rows);

    int HeaderHeight() const { return m_nHeader; }
    int RowCount() const { return m_nRows; }
    int RowsPerPage() const; // whole rows, at least one

    int TopRow() const { return m_nTop; }
    void ScrollTo(int topRow); // as far as there are rows
    void ScrollIntoView(int row);

    int RowAt(int y) const; // -1: none
    RECT RowRect(int row) const;
    RECT NameRect(int row) const;
    RECT ValueRect(int row) const;
    RECT RowsRect() const; // everything below the header

    // The line between the columns keeps its share of the width when the grid is resized.
    int SplitX() const;
    void SetSplitX(int x);
    bool IsSplitAllowed(int x) const { return ClampSplit(x) == x; }
    int Width() const { return m_nWidth; }

private:
    int ClampSplit(int x) const;

    int m_nWidth = 0;
    int m_nHeight = 0;
    int m_nHeader = 0;
    int m_nRowHeight = 1;
    int m_nRows = 0;
    int m_nTop = 0;
    double m_fSplit = 0.5;
};
