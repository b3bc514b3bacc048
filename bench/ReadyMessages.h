#pragma once

#include "bench/WindowState.h"

#include <set>

// Messages to the controls of one window, with every value worked out beforehand.
class ReadyMessages
{
public:
    // What turns a window that shows one state into one that shows the other. The lists named by id are emptied and
    // filled even where their rows stay the same.
    ReadyMessages(const WindowState& from, const WindowState& to, const std::set<int>& rebuilt = {});

    // What reads the values that an operator can change.
    static ReadyMessages Reading(const WindowState& state);

    // Controls are looked for once as long as the window lives.
    void Send(HWND window) const;

private:
    struct Message
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        std::wstring text; // stands for the last parameter where there is one
        bool hasText;
    };

    struct Control
    {
        int id;
        std::vector<Message> messages;
        int enable = -1; // -1: stays
        int show = -1;
        HWND window = nullptr; // as found below the parent
        HWND parent = nullptr;
    };

    ReadyMessages() = default;
    static void FillRows(Control& control, const ControlState& state);

    mutable std::vector<Control> m_controls;
};
