// Common controls: the trackbar.
// Positions are the full 32 bits of the control; ticks need TBS_AUTOTICKS in the template.
#pragma once

#include <afxwin.h>

class CSliderCtrl : public CWnd
{
public:
    int GetPos() const { return static_cast<int>(SendMessage(TBM_GETPOS)); }
    void SetPos(int nPos) { SendMessage(TBM_SETPOS, TRUE, nPos); }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE)
    {
        SendMessage(TBM_SETRANGEMIN, FALSE, nMin);
        SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(bRedraw), nMax);
    }
    int SetLineSize(int nSize) { return static_cast<int>(SendMessage(TBM_SETLINESIZE, 0, nSize)); }
    int SetPageSize(int nSize) { return static_cast<int>(SendMessage(TBM_SETPAGESIZE, 0, nSize)); }
    void SetTicFreq(int nFreq) { SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(nFreq)); }
};
