// Prints the windows on the desktop for scripts that operate them from outside. One line per window in UTF-8, with
// fields separated by tabs; front window first, children after their parents:
//   window  ID  CLASS  STATE  LEFT TOP RIGHT BOTTOM  TEXT
//   row  LIST-ID  INDEX  STATE  LEFT TOP RIGHT BOTTOM  TEXT      (a row of the list box above it, unless scrolled out)
// STATE: v or - (visible), e or - (enabled, with all its parents), s or - (row: selected, check box: checked,
// window: in front).
#include <cstdio>
#include <cstdlib>
#include <string>
#include <windows.h>

namespace
{

// A hung program must not hang this one.
LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    DWORD_PTR result = 0;
    const LRESULT answered = SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, 2000, &result);
    return answered != 0 ? static_cast<LRESULT>(result) : 0;
}

std::string ToUtf8(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    const int used = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()),
                                         nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(used));
    return bytes;
}

std::wstring AskText(HWND window, UINT lengthMessage, UINT textMessage, WPARAM row)
{
    const bool ofRow = textMessage == LB_GETTEXT;
    const LRESULT length = Ask(window, lengthMessage, row);
    std::wstring text(static_cast<std::size_t>(length > 0 ? length : 0) + 1, L'\0');
    const LRESULT used = Ask(window, textMessage, ofRow ? row : text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(used > 0 ? used : 0));
    for (wchar_t& character : text)
    {
        character = character < L' ' ? L' ' : character;
    }
    return text;
}

std::wstring ClassOf(HWND window)
{
    wchar_t name[256] = L"";
    GetClassNameW(window, name, 256);
    return name;
}

bool IsReachable(HWND window)
{
    bool reachable = true;
    for (; window != nullptr && window != GetDesktopWindow(); window = GetAncestor(window, GA_PARENT))
    {
        reachable = reachable && IsWindowEnabled(window) != FALSE;
    }
    return reachable;
}

bool IsMarked(HWND window, const std::wstring& className)
{
    return className == L"Button" ? Ask(window, BM_GETCHECK) == BST_CHECKED : window == GetForegroundWindow();
}

void PrintLine(const char* kind, long id, const std::string& what, const std::string& state, const RECT& place,
               const std::wstring& text)
{
    std::printf("%s\t%ld\t%s\t%s\t%ld %ld %ld %ld\t%s\n", kind, id, what.c_str(), state.c_str(), place.left, place.top,
                place.right, place.bottom, ToUtf8(text).c_str());
}

std::string StateOf(HWND window, bool marked)
{
    std::string state = IsWindowVisible(window) != FALSE ? "v" : "-";
    state += IsReachable(window) ? "e" : "-";
    return state + (marked ? "s" : "-");
}

void PrintRows(HWND list)
{
    RECT client = {};
    GetClientRect(list, &client);
    const WPARAM rows = static_cast<WPARAM>(Ask(list, LB_GETCOUNT));
    for (WPARAM row = 0; row < rows; ++row)
    {
        RECT place = {};
        RECT seen = {};
        Ask(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&place));
        if (IntersectRect(&seen, &place, &client) != FALSE)
        {
            MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&seen), 2);
            const bool selected = static_cast<LRESULT>(row) == Ask(list, LB_GETCURSEL);
            PrintLine("row", GetDlgCtrlID(list), std::to_string(row), StateOf(list, selected), seen,
                      AskText(list, LB_GETTEXTLEN, LB_GETTEXT, row));
        }
    }
}

void PrintWindow(HWND window)
{
    RECT place = {};
    GetWindowRect(window, &place);
    const std::wstring className = ClassOf(window);
    PrintLine("window", GetDlgCtrlID(window), ToUtf8(className), StateOf(window, IsMarked(window, className)), place,
              AskText(window, WM_GETTEXTLENGTH, WM_GETTEXT, 0));
    if (className == L"ListBox" || className == L"ComboLBox")
    {
        PrintRows(window);
    }
}

BOOL CALLBACK PrintWithChildren(HWND window, LPARAM)
{
    PrintWindow(window);
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        PrintWithChildren(child, 0);
    }
    return TRUE;
}

BOOL CALLBACK PrintTopLevel(HWND window, LPARAM)
{
    return IsWindowVisible(window) != FALSE ? PrintWithChildren(window, 0) : TRUE;
}

} // namespace

int wmain()
{
    EnumWindows(PrintTopLevel, 0);
    return EXIT_SUCCESS;
}
