// CString: the wide string of the framework.
// Supported: construction, assignment, joining, comparison, Format, Trim and conversion to LPCTSTR.
// Not supported: reference counting, GetBuffer, narrow strings. A null text is taken as the empty one.
#pragma once

#include <windows.h>

#include <cstdarg>
#include <string>

class CString
{
public:
    CString() = default;
    CString(LPCTSTR psz) : m_str(psz ? psz : L"") {}
    CString(const std::wstring& str) : m_str(str) {}

    operator LPCTSTR() const { return m_str.c_str(); }
    LPCTSTR GetString() const { return m_str.c_str(); }
    int GetLength() const { return static_cast<int>(m_str.size()); }
    BOOL IsEmpty() const { return m_str.empty(); }
    void Empty() { m_str.clear(); }

    CString& operator+=(LPCTSTR psz)
    {
        m_str += psz ? psz : L"";
        return *this;
    }

    int Compare(LPCTSTR psz) const { return m_str.compare(psz ? psz : L""); }
    int CompareNoCase(LPCTSTR psz) const;

    // "%s" takes wide text and "%hs" narrow text, whatever mode the compiler's own printf family is in.
    void Format(LPCTSTR pszFormat, ...);
    void AppendFormat(LPCTSTR pszFormat, ...);

    // Removes white space (tab, no-break and ideographic space included) at both ends.
    CString& Trim();

private:
    static std::wstring FormatV(LPCTSTR pszFormat, va_list args);

    std::wstring m_str;
};

inline bool operator==(const CString& a, LPCTSTR b)
{
    return a.Compare(b) == 0;
}

inline bool operator==(const CString& a, const CString& b)
{
    return a == b.GetString();
}

inline bool operator!=(const CString& a, LPCTSTR b)
{
    return !(a == b);
}

inline bool operator!=(const CString& a, const CString& b)
{
    return !(a == b);
}
