#include "bench/EditorKind.h"

#include "resources/resource.h"

#include <commctrl.h>
#include <stdexcept>

const EditorKind kPrintModeEditor = {
    "print modes", &IQuorvane::EditPrintModes, IDD_PRINT_MODE, {IDD_PRINT_MODE_CMMN, IDD_PRINT_MODE_DATA}};
const EditorKind kFactoryEditor = {"factory schemes",
                                   &IQuorvane::EditFactorySchemes,
                                   IDD_SCHEME_FACTORY,
                                   {IDD_SCHEME_CMMN, IDD_SCHEME_MODE, IDD_SCHEME_ELC, IDD_SCHEME_INK_MUL,
                                    IDD_SCHEME_INK_CUT, IDD_SCHEME_UV, IDD_SCHEME_SAPP}};
const EditorKind kUserEditor = {
    "user schemes",
    &IQuorvane::EditUserSchemes,
    IDD_SCHEME_USER,
    {IDD_SCHEME_CMMN, IDD_SCHEME_ELC, IDD_SCHEME_INK_MUL, IDD_SCHEME_INK_CUT, IDD_SCHEME_UV, IDD_SCHEME_SAPP}};

namespace
{
// A control that occurs on no other page of an editor.
int TypicalControl(UINT pageTemplate)
{
    switch (pageTemplate)
    {
    case IDD_PRINT_MODE_CMMN:
        return IDC_CMB_XDPI;
    case IDD_PRINT_MODE_DATA:
        return IDC_STATIC_GRID;
    case IDD_SCHEME_CMMN:
        return IDC_CMB_SPEED;
    case IDD_SCHEME_MODE:
        return IDC_CMB_PRINT_MODE;
    case IDD_SCHEME_ELC:
        return IDC_CMB_ELC_LEVEL;
    case IDD_SCHEME_INK_MUL:
        return IDC_CMB_INK_MUL_FIRST;
    case IDD_SCHEME_INK_CUT:
        return IDC_STATIC_PERCENT_FIRST;
    case IDD_SCHEME_UV:
        return IDC_CHECK_LPRINT_LLIGHT;
    default:
        return IDC_CMB_SMALL_MODE;
    }
}

HWND PageOf(HWND tab, UINT pageTemplate)
{
    for (HWND page : Children(tab))
        if (IsOfClass(page, L"#32770") && GetDlgItem(page, TypicalControl(pageTemplate)))
            return page;
    throw std::runtime_error("an editor lacks a page");
}

std::vector<std::wstring> TabLabels(HWND tab)
{
    std::vector<std::wstring> labels;
    const auto count = static_cast<WPARAM>(SendMessageW(tab, TCM_GETITEMCOUNT, 0, 0));
    for (WPARAM i = 0; i < count; ++i)
    {
        wchar_t text[256]{};
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 256;
        SendMessageW(tab, TCM_GETITEMW, i, reinterpret_cast<LPARAM>(&item));
        labels.push_back(text);
    }
    return labels;
}

template <class Predicate>
WindowState Without(WindowState state, Predicate isLeftOut)
{
    WindowState kept;
    for (const ControlState& control : state)
        if (!isLeftOut(control))
            kept.push_back(control);
    return kept;
}
} // namespace

HWND TabOf(HWND dialog)
{
    for (HWND child : Children(dialog))
        if (IsOfClass(child, WC_TABCONTROLW))
            return child;
    return nullptr;
}

EditorState ReadEditor(const EditorKind& kind, HWND dialog)
{
    EditorState state;
    wchar_t caption[256]{};
    GetWindowTextW(dialog, caption, 256);
    state.caption = caption;
    state.dialog = Without(ReadWindow(dialog), [](const ControlState& control) { return control.Is(WC_TABCONTROLW); });
    const HWND tab = TabOf(dialog);
    state.tabs = TabLabels(tab);
    for (UINT page : kind.pageTemplates)
        state.pages.push_back(Without(ReadWindow(PageOf(tab, page)),
                                      [](const ControlState& control) { return control.Is(L"AfxPropertyGrid"); }));
    return state;
}
