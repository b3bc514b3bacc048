#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>
#include <windows.h>

// Writes down every dialog and message box that the thread opens. A test claims each that it expects; one that nobody
// claimed was not expected.
class DialogWatch
{
public:
    // On the thread that is watched; one at a time.
    DialogWatch();
    ~DialogWatch();
    DialogWatch(const DialogWatch&) = delete;
    DialogWatch& operator=(const DialogWatch&) = delete;

    // The visible ones, innermost last.
    std::vector<HWND> Open() const;
    std::optional<HWND> FirstUnclaimed() const;
    void Claim(HWND dialog);
    // Those to come too.
    void ClaimAll();
    bool IsOpen(HWND dialog) const;

    // Of all that were opened so far; closed ones by the caption they came with.
    std::vector<std::string> DescribeUnclaimed() const;
    std::string DescribeOpen() const;

    // Returns when a dialog comes, is activated or goes, or after a short while.
    void AwaitChange();

private:
    struct Entry
    {
        HWND handle;
        std::wstring caption;
        bool claimed;
        bool open;
    };

    static LRESULT CALLBACK HookProc(int code, WPARAM wParam, LPARAM lParam);
    void Created(HWND window, const CREATESTRUCTW& details);
    void Destroyed(HWND window);
    void Changed();

    HHOOK m_hook;
    mutable std::mutex m_mutex;
    std::condition_variable m_change;
    unsigned m_changes = 0;
    bool m_claimsAll = false;
    std::vector<Entry> m_entries;
};

std::wstring WindowText(HWND window);
std::wstring WindowClass(HWND window);
std::string Utf8(const std::wstring& text);

// A system message box holds a text and buttons, and nothing to edit or choose from.
bool IsMessageBox(HWND dialog);
// Caption, and a message box's text.
std::string DescribeDialog(HWND dialog);
