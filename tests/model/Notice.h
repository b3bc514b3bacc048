#pragma once

#include <mutex>
#include <string>
#include <vector>
#include <windows.h>

// What a control told its dialog, with the control's state at that moment.
struct Notice
{
    int dialog; // resource id of the dialog or page that was told
    int control;
    UINT message; // WM_COMMAND or WM_HSCROLL
    int code;
    int state;         // selected row, check state or position
    std::wstring text; // of an edit field
    bool isNested;     // while the dialog was still at work on an earlier one
};

// Writes down what the controls of some dialogs tell them, before the dialogs deal with it. An operator's gesture may
// reach a dialog as one notification, as several or as none: that is the system's controls' doing, not the dialogs'.
class NoticeTap
{
public:
    NoticeTap();
    ~NoticeTap();
    NoticeTap(const NoticeTap&) = delete;
    NoticeTap& operator=(const NoticeTap&) = delete;

    // On the dialog's own thread, like all that follows from it. The tap is gone with the dialog.
    void Attach(HWND dialog, int resourceId);

    std::vector<Notice> Take();

private:
    struct Tapped
    {
        HWND dialog;
        HWND root;
        int resourceId;
        WNDPROC procedure;
    };

    static LRESULT CALLBACK TapProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(const Tapped& tapped, UINT message, WPARAM wParam, LPARAM lParam);
    void Note(const Tapped& tapped, UINT message, WPARAM wParam, LPARAM lParam);
    const Tapped* Find(HWND dialog) const;
    void Release(HWND dialog);

    std::vector<Tapped> m_tapped;
    std::vector<HWND> m_busy; // roots at work, one entry for each message
    std::mutex m_mutex;       // of the notices
    std::vector<Notice> m_notices;
};
