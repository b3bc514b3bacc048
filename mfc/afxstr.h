// CString: the wide string of the framework.
// Supported: construction, assignment, joining, comparison, Format, Trim and conversion to const wchar_t*.
// Not supported: reference counting, GetBuffer, narrow strings. A null text is taken as the empty one.
#pragma once

#include <windows.h>

#include <cstdarg>
#include <string>

namespace afx
{
// The white space of Unicode, whatever locale the C library has.
bool IsSpace(wchar_t ch);
} // namespace afx

class CString
{
public:
    CString() = default;
    // NOLINTBEGIN(google-explicit-constructor): texts and strings stand for each other in the framework.
    CString(const wchar_t* text) : m_strText(text ? text : L"") {}
    CString(const std::wstring& text) : m_strText(text) {}

    operator const wchar_t*() const { return m_strText.c_str(); }
    // NOLINTEND(google-explicit-constructor)
    const wchar_t* GetString() const { return m_strText.c_str(); }
    int GetLength() const { return static_cast<int>(m_strText.size()); }
    BOOL IsEmpty() const { return m_strText.empty(); }
    void Empty() { m_strText.clear(); }

    CString& operator+=(const wchar_t* text)
    {
        m_strText += text ? text : L"";
        return *this;
    }

    int Compare(const wchar_t* text) const { return m_strText.compare(text ? text : L""); }
    int CompareNoCase(const wchar_t* text) const;

    // "%s" takes wide text and "%hs" narrow text, whatever mode the compiler's own printf family is in.
    void Format(const wchar_t* format, ...);
    void AppendFormat(const wchar_t* format, ...);

    // Removes white space at both ends, as afx::IsSpace knows it.
    CString& Trim();

private:
    static std::wstring FormatV(const wchar_t* format, va_list args);

    std::wstring m_strText;
};

inline bool operator==(const CString& a, const wchar_t* b)
{
    return a.Compare(b) == 0;
}

inline bool operator==(const CString& a, const CString& b)
{
    return a == b.GetString();
}

inline bool operator!=(const CString& a, const wchar_t* b)
{
    return !(a == b);
}

inline bool operator!=(const CString& a, const CString& b)
{
    return !(a == b);
}
