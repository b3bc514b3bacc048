#pragma once

#include "bench/WindowState.h"

#include <set>

// Messages to the controls of one window, with all values computed beforehand.
class ReadyMessages
{
public:
    // The messages that turn a window that shows one state into one that shows the other. rebuilt: ids of lists that
    // are emptied and filled even if their rows stay the same.
    ReadyMessages(const WindowState& from, const WindowState& to, const std::set<int>& rebuilt = {});

    // The messages that read the values that an operator can change.
    static ReadyMessages Reading(const WindowState& state);

    // Looks for each control only once while the window exists.
    void Send(HWND window) const;

private:
    struct Message
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        std::wstring text; // if hasText, sent in place of lParam
        bool hasText;
    };

    struct Control
    {
        int id;
        std::vector<Message> messages;
        int enable = -1; // -1: unchanged
        int show = -1;
        HWND window = nullptr; // as found in parent
        HWND parent = nullptr;
    };

    ReadyMessages() = default;
    static void FillRows(Control& control, const ControlState& state);

    mutable std::vector<Control> m_controls;
};
