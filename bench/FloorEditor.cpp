#include "bench/FloorEditor.h"

#include "resources/resource.h"

#include <commctrl.h>
#include <stdexcept>

namespace
{
constexpr int kTabPadding = 4;
constexpr wchar_t kGridClass[] = L"BenchGrid";

// The lists that a page fills again for every scheme or mode.
std::set<int> RebuiltLists(UINT pageTemplate)
{
    switch (pageTemplate)
    {
    case IDD_PRINT_MODE_CMMN:
        return {IDC_CMB_XDPI,        IDC_CMB_SMALL_GROUP, IDC_CMB_MEDIUM_GROUP,
                IDC_CMB_LARGE_GROUP, IDC_CMB_FRONT_GROUP, IDC_CMB_BACK_GROUP};
    case IDD_SCHEME_CMMN:
        return {IDC_CMB_MATERIAL, IDC_CMB_CHANNEL, IDC_CMB_LAYOUT, IDC_CMB_HEAD};
    case IDD_SCHEME_MODE:
        return {IDC_CMB_PRINT_MODE};
    case IDD_SCHEME_ELC:
        return {IDC_CMB_ELC_TYPE};
    default:
        return {};
    }
}

int MinTabWidth(HWND tab, HFONT font)
{
    const HDC dc = GetDC(tab);
    const HGDIOBJ old = SelectObject(dc, font);
    TEXTMETRICW metric;
    GetTextMetricsW(dc, &metric);
    SelectObject(dc, old);
    ReleaseDC(tab, dc);
    return 2 * metric.tmHeight;
}

void RegisterGridClass()
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &DefWindowProcW;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kGridClass;
    RegisterClassW(&windowClass);
}

// The library's manifest, as the library activates it. Created once, because it never changes.
HANDLE ControlsOf(HMODULE library)
{
    static const HANDLE context = [library] {
        wchar_t path[MAX_PATH + 1]{};
        GetModuleFileNameW(library, path, MAX_PATH);
        ACTCTXW description{};
        description.cbSize = sizeof description;
        description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
        description.lpSource = path;
        description.lpResourceName = MAKEINTRESOURCEW(2);
        description.hModule = library;
        return CreateActCtxW(&description);
    }();
    return context;
}

class ActiveControls
{
public:
    explicit ActiveControls(HMODULE library)
    {
        if (!ActivateActCtx(ControlsOf(library), &m_cookie))
            throw std::runtime_error("the library's manifest cannot be activated");
    }
    ~ActiveControls() { DeactivateActCtx(0, m_cookie); }
    ActiveControls(const ActiveControls&) = delete;
    ActiveControls& operator=(const ActiveControls&) = delete;

private:
    ULONG_PTR m_cookie = 0;
};

RECT RectOf(HWND control, HWND parent)
{
    RECT rect;
    GetWindowRect(control, &rect);
    MapWindowPoints(HWND_DESKTOP, parent, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}
} // namespace

FloorEditor::FloorEditor(HMODULE library, const EditorKind& kind, const EditorState& state)
    : m_library(library), m_kind(kind), m_caption(state.caption), m_tabs(state.tabs)
{
    RegisterGridClass();
    const ActiveControls controls(library);
    m_dialogMessages.emplace_back(BareWindow(kind.dialogTemplate, nullptr), state.dialog);
    const HWND parent = Create(kind.dialogTemplate, nullptr, &PageProc, 0);
    for (std::size_t i = 0; i < kind.pageTemplates.size(); ++i)
        m_pageMessages.emplace_back(BareWindow(kind.pageTemplates[i], parent), state.pages[i]);
    DestroyWindow(parent);
}

HWND FloorEditor::Create(UINT dialogTemplate, HWND parent, DLGPROC procedure, LPARAM param) const
{
    const HRSRC resource = FindResourceW(m_library, MAKEINTRESOURCEW(dialogTemplate), RT_DIALOG);
    const HGLOBAL data = resource ? LoadResource(m_library, resource) : nullptr;
    const HWND window = data ? CreateDialogIndirectParamW(m_library, static_cast<LPCDLGTEMPLATEW>(LockResource(data)),
                                                          parent, procedure, param)
                             : nullptr;
    if (!window)
        throw std::runtime_error("a template of the library makes no dialog");
    return window;
}

WindowState FloorEditor::BareWindow(UINT dialogTemplate, HWND parent) const
{
    const HWND window = Create(dialogTemplate, parent, &PageProc, 0);
    const WindowState state = ReadWindow(window);
    DestroyWindow(window);
    return state;
}

INT_PTR CALLBACK FloorEditor::PageProc(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

INT_PTR CALLBACK FloorEditor::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
        reinterpret_cast<FloorEditor*>(lParam)->Init(window);
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
        reinterpret_cast<FloorEditor*>(GetWindowLongPtrW(window, GWLP_USERDATA))->m_running = false;
    return FALSE;
}

void FloorEditor::Run(HWND owner)
{
    const ActiveControls controls(m_library);
    EnableWindow(owner, FALSE);
    m_running = true;
    m_dialog = Create(m_kind.dialogTemplate, owner, &DialogProc, reinterpret_cast<LPARAM>(this));
    ShowWindow(m_dialog, SW_SHOWNORMAL);
    bool tellIdle = true;
    while (m_running)
    {
        MSG message;
        const bool idle = !PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
        if (idle && tellIdle)
            SendMessageW(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_dialog));
        tellIdle = !idle;
        GetMessageW(&message, nullptr, 0, 0);
        if (!IsDialogMessageW(m_dialog, &message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    EnableWindow(owner, TRUE);
    DestroyWindow(m_dialog);
    SetActiveWindow(owner);
}

void FloorEditor::Init(HWND dialog)
{
    m_dialog = dialog;
    SetWindowTextW(dialog, m_caption.c_str());
    CreateTab();
    CreatePages();
    m_dialogMessages.front().Send(dialog);
}

void FloorEditor::CreateTab()
{
    const HWND placeholder = GetDlgItem(m_dialog, IDC_TAB);
    const RECT rect = RectOf(placeholder, m_dialog);
    m_tab =
        CreateWindowExW(WS_EX_CONTROLPARENT, WC_TABCONTROLW, nullptr,
                        WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | TCS_FOCUSONBUTTONDOWN,
                        rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, m_dialog,
                        reinterpret_cast<HMENU>(IDC_TAB), m_library, nullptr);
    SetWindowPos(m_tab, placeholder, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    const auto font = static_cast<WPARAM>(SendMessageW(m_dialog, WM_GETFONT, 0, 0));
    SendMessageW(m_tab, WM_SETFONT, font, 0);
    SendMessageW(m_tab, TCM_SETPADDING, 0, MAKELPARAM(kTabPadding, kTabPadding));
    SendMessageW(m_tab, TCM_SETMINTABWIDTH, 0, MinTabWidth(m_tab, reinterpret_cast<HFONT>(font)));
}

void FloorEditor::CreatePages()
{
    m_pages.clear();
    for (std::size_t i = 0; i < m_kind.pageTemplates.size(); ++i)
    {
        m_pages.push_back(Create(m_kind.pageTemplates[i], m_tab, &PageProc, 0));
        if (m_kind.pageTemplates[i] == IDD_PRINT_MODE_DATA)
            CreateGrid(m_pages.back());
        m_pageMessages[i].Send(m_pages.back());
    }
    for (std::size_t i = 0; i < m_pages.size(); ++i)
    {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = m_tabs[i].data();
        SendMessageW(m_tab, TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
    }
    RECT rect;
    GetClientRect(m_tab, &rect);
    SendMessageW(m_tab, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rect));
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        SetWindowPos(m_pages[i], nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                     SWP_NOZORDER | SWP_NOACTIVATE | (i == 0 ? SWP_SHOWWINDOW : 0u));
}

// Creates the system controls that the grid consists of. The grid draws its rows itself.
void FloorEditor::CreateGrid(HWND page) const
{
    const RECT rect = RectOf(GetDlgItem(page, IDC_STATIC_GRID), page);
    const HWND grid = CreateWindowExW(
        0, kGridClass, nullptr, WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
        rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, page,
        reinterpret_cast<HMENU>(IDC_GRID_DATA_MODE), GetModuleHandleW(nullptr), nullptr);
    const HWND header =
        CreateWindowExW(0, WC_HEADERW, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | HDS_HORZ | HDS_FULLDRAG, 0, 0,
                        rect.right - rect.left, 20, grid, reinterpret_cast<HMENU>(1), m_library, nullptr);
    for (WPARAM column = 0; column < 2; ++column)
    {
        wchar_t text[] = L"数据处理模式";
        HDITEMW item{};
        item.mask = HDI_FORMAT | HDI_WIDTH | HDI_TEXT;
        item.fmt = HDF_LEFT | HDF_STRING;
        item.cxy = (rect.right - rect.left) / 2;
        item.pszText = text;
        SendMessageW(header, HDM_INSERTITEMW, column, reinterpret_cast<LPARAM>(&item));
    }
    const HWND list = CreateWindowExW(0, WC_LISTBOXW, nullptr,
                                      WS_CHILD | WS_BORDER | WS_VSCROLL | WS_CLIPSIBLINGS | LBS_NOTIFY |
                                          LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT,
                                      0, 0, 0, 0, grid, reinterpret_cast<HMENU>(2), m_library, nullptr);
    const auto font = static_cast<WPARAM>(SendMessageW(page, WM_GETFONT, 0, 0));
    SendMessageW(header, WM_SETFONT, font, 0);
    SendMessageW(list, WM_SETFONT, font, 0);
}

void FloorEditor::Apply(const FloorChange& change) const
{
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        change.reading[i].Send(m_pages[i]);
    change.dialog.Send(m_dialog);
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        change.showing[i].Send(m_pages[i]);
}

FloorChange::FloorChange(const EditorKind& kind, const EditorState& from, const EditorState& to, Rebuilds rebuilds)
    : dialog(from.dialog, to.dialog, rebuilds.listOfDialog ? std::set<int>{rebuilds.listOfDialog} : std::set<int>{})
{
    for (std::size_t i = 0; i < kind.pageTemplates.size(); ++i)
    {
        reading.push_back(ReadyMessages::Reading(from.pages[i]));
        showing.emplace_back(from.pages[i], to.pages[i],
                             rebuilds.pageLists ? RebuiltLists(kind.pageTemplates[i]) : std::set<int>{});
    }
}
