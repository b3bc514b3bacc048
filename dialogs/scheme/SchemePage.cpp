#include "dialogs/scheme/SchemePage.h"

namespace
{
// A list that the page fills and selects itself is not loaded, nor one that the editor hides: it keeps its row.
bool IsLoaded(const CComboBox& list, const RowView& view)
{
    return view.show && (list.GetStyle() & WS_VISIBLE) != 0;
}
} // namespace

BOOL CSchemePage::OnInitDialog()
{
    if (!CDialogEx::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    InitControls();
    LoadFromScheme();
    return TRUE;
}

void CSchemePage::ShowScheme(int schemeId)
{
    m_nSchemeId = schemeId;
    if (!m_hWnd)
        return;
    try
    {
        UpdateCtrlState();
        LoadFromScheme();
    }
    catch (...)
    {
        // Some controls still show the scheme before. Stored under the new id, its values would be lost.
        ::OutputDebugString(L"Quorvane: an exception of the host left a page half loaded\n");
        m_nSchemeId = NO_SCHEME;
        throw;
    }
}

int CSchemePage::ValueOf(SchemeField field, int fallback) const
{
    int value = fallback;
    WithScheme([&](auto& scheme) { value = GetField(scheme, field); });
    return value;
}

void CSchemePage::BindNumber(SchemeField field, int& number)
{
    m_vecFields.push_back({field, &number, nullptr, nullptr});
}

void CSchemePage::BindList(SchemeField field, CComboBox& list, const RowView& view)
{
    m_vecFields.push_back({field, nullptr, &list, &view});
}

template <class Scheme>
void CSchemePage::LoadBound(Scheme& scheme, IPrintScheme* factory)
{
    for (const BoundField& bound : m_vecFields)
    {
        if (bound.list && !IsLoaded(*bound.list, *bound.view))
            continue;
        if (HasField(scheme, bound.field))
            ShowValue(bound, GetField(scheme, bound.field));
        else if (factory)
            ShowValue(bound, GetField(*factory, bound.field));
    }
}

void CSchemePage::LoadFields(IPrintScheme& scheme)
{
    LoadBound(scheme, &scheme);
}

void CSchemePage::LoadFields(IUserScheme& scheme)
{
    LoadBound(scheme, BaseSchemeOf(&scheme));
}

template <class Scheme>
void CSchemePage::SaveBound(Scheme& scheme) const
{
    for (const BoundField& bound : m_vecFields)
        if (HasField(scheme, bound.field))
            if (const std::optional<int> value = ValueOnScreen(bound))
                SetField(scheme, bound.field, *value);
}

void CSchemePage::SaveFields(IPrintScheme& scheme) const
{
    SaveBound(scheme);
}

void CSchemePage::SaveFields(IUserScheme& scheme) const
{
    SaveBound(scheme);
}

void CSchemePage::ShowValue(const BoundField& bound, int value)
{
    if (bound.number)
        *bound.number = value;
    else
        bound.view->show(*bound.list, value);
}

std::optional<int> CSchemePage::ValueOnScreen(const BoundField& bound)
{
    return bound.number ? *bound.number : bound.view->read(*bound.list);
}

CString CSchemePage::TranslatedName(const char* narrow) const
{
    const std::wstring name = HostText(narrow);
    return GetLanguageText(name.c_str(), name.c_str());
}

void CSchemePage::FillSwitch(CComboBox& list, const wchar_t* offDefault, const wchar_t* onDefault)
{
    list.AddString(GetLanguageText(L"DISABLE", offDefault));
    list.AddString(GetLanguageText(L"ENABLE", onDefault));
}
