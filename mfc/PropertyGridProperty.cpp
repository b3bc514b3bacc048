#include <afxpropertygridctrl.h>

#include <algorithm>
#include <cassert>

CMFCPropertyGridProperty::CMFCPropertyGridProperty(const CString& name, const CString& value, const wchar_t*,
                                                   DWORD_PTR data)
    : m_strName(name), m_strValue(value), m_strOriginal(value), m_nData(data)
{
}

void CMFCPropertyGridProperty::SetValue(const CString& value)
{
    m_strValue = value;
    if (m_pGrid && m_pGrid->m_hWnd)
        m_pGrid->Invalidate(FALSE);
}

BOOL CMFCPropertyGridProperty::AddOption(const wchar_t* option, BOOL insertUnique)
{
    const CString text = option;
    if (insertUnique && std::find(m_vecOptions.begin(), m_vecOptions.end(), text) != m_vecOptions.end())
        return FALSE;
    m_vecOptions.push_back(text);
    return TRUE;
}

void CMFCPropertyGridProperty::AllowEdit([[maybe_unused]] BOOL allow)
{
    assert(!allow);
}
