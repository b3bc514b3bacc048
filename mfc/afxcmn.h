// Common controls: the trackbar.
// Positions are the full 32 bits of the control; ticks need TBS_AUTOTICKS in the template.
#pragma once

#include <afxwin.h>

class CSliderCtrl : public CWnd
{
public:
    int GetPos() const { return static_cast<int>(SendMessage(TBM_GETPOS)); }
    void SetPos(int pos) { SendMessage(TBM_SETPOS, TRUE, pos); }
    void SetRange(int min, int max, BOOL redraw = FALSE)
    {
        SendMessage(TBM_SETRANGEMIN, FALSE, min);
        SendMessage(TBM_SETRANGEMAX, static_cast<WPARAM>(redraw), max);
    }
    int SetLineSize(int size) { return static_cast<int>(SendMessage(TBM_SETLINESIZE, 0, size)); }
    int SetPageSize(int size) { return static_cast<int>(SendMessage(TBM_SETPAGESIZE, 0, size)); }
    void SetTicFreq(int frequency) { SendMessage(TBM_SETTICFREQ, static_cast<WPARAM>(frequency)); }
};
