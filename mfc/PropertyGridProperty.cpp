#include <afxpropertygridctrl.h>

#include <algorithm>
#include <cassert>

CMFCPropertyGridProperty::CMFCPropertyGridProperty(const CString& strName, const CString& strValue, LPCTSTR,
                                                   DWORD_PTR dwData)
    : m_strName(strName), m_strValue(strValue), m_strOriginal(strValue), m_dwData(dwData)
{
}

void CMFCPropertyGridProperty::SetValue(const CString& strValue)
{
    m_strValue = strValue;
    if (m_pGrid && m_pGrid->m_hWnd)
        m_pGrid->Invalidate(FALSE);
}

BOOL CMFCPropertyGridProperty::AddOption(LPCTSTR lpszOption, BOOL bInsertUnique)
{
    const CString strOption = lpszOption;
    if (bInsertUnique && std::find(m_options.begin(), m_options.end(), strOption) != m_options.end())
        return FALSE;
    m_options.push_back(strOption);
    return TRUE;
}

void CMFCPropertyGridProperty::AllowEdit([[maybe_unused]] BOOL bAllow)
{
    assert(!bAllow);
}
