#include <afxstr.h>

#include <cwchar>
#include <cwctype>
#include <vector>

int CString::CompareNoCase(LPCTSTR psz) const
{
    return _wcsicmp(m_str.c_str(), psz ? psz : L"");
}

std::wstring CString::FormatV(LPCTSTR pszFormat, va_list args)
{
    // msvcrt's own formatter: the compiler's C99 one would read every wide "%s" argument as narrow.
    std::vector<wchar_t> buffer(256);
    for (;;)
    {
        va_list copy;
        va_copy(copy, args);
        const int nLength = _vsnwprintf(buffer.data(), buffer.size() - 1, pszFormat, copy);
        va_end(copy);
        if (nLength >= 0)
            return std::wstring(buffer.data(), static_cast<size_t>(nLength));
        buffer.resize(buffer.size() * 2);
    }
}

void CString::Format(LPCTSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    m_str = FormatV(pszFormat, args);
    va_end(args);
}

void CString::AppendFormat(LPCTSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    m_str += FormatV(pszFormat, args);
    va_end(args);
}

CString& CString::Trim()
{
    const auto isSpace = [](wchar_t ch) { return std::iswspace(static_cast<wint_t>(ch)) != 0; };
    size_t nBegin = 0;
    size_t nEnd = m_str.size();
    while (nBegin < nEnd && isSpace(m_str[nBegin]))
        ++nBegin;
    while (nEnd > nBegin && isSpace(m_str[nEnd - 1]))
        --nEnd;
    m_str = m_str.substr(nBegin, nEnd - nBegin);
    return *this;
}
