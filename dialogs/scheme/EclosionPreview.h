#pragma once

#include <windows.h>

#include <algorithm>

// Widths and heights of elements.
constexpr int MIN_ELEMENT_SIZE = 1;
constexpr int MAX_ELEMENT_SIZE = 8;

// The rectangle that shows an element in its frame: centred, a step being an eighth of the frame's shorter side.
inline RECT ElementPreview(const RECT& frame, int nWidth, int nHeight)
{
    const LONG nUnit = std::min(frame.bottom - frame.top, frame.right - frame.left) / MAX_ELEMENT_SIZE;
    const LONG nShownWidth = nWidth * nUnit;
    const LONG nShownHeight = nHeight * nUnit;
    const LONG nLeft = (frame.left + frame.right) / 2 - nShownWidth / 2;
    const LONG nTop = (frame.top + frame.bottom) / 2 - nShownHeight / 2;
    return {nLeft, nTop, nLeft + nShownWidth, nTop + nShownHeight};
}
