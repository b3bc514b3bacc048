#include <afxstr.h>

#include <cwchar>
#include <vector>

bool afx::IsSpace(wchar_t ch)
{
    static constexpr wchar_t SPACE[] = L"\t\n\v\f\r \x85\xA0\x1680\x2000\x2001\x2002\x2003\x2004\x2005\x2006\x2007"
                                       L"\x2008\x2009\x200A\x2028\x2029\x202F\x205F\x3000";
    return ch != L'\0' && std::wcschr(SPACE, ch);
}

int CString::CompareNoCase(const wchar_t* text) const
{
    return _wcsicmp(m_strText.c_str(), text ? text : L"");
}

std::wstring CString::FormatV(const wchar_t* format, va_list args)
{
    // msvcrt's own formatter: the compiler's C99 one would read every wide "%s" argument as narrow.
    std::vector<wchar_t> buffer(256);
    for (;;)
    {
        va_list copy;
        va_copy(copy, args);
        const int length = _vsnwprintf(buffer.data(), buffer.size() - 1, format, copy);
        va_end(copy);
        if (length >= 0)
            return {buffer.data(), static_cast<size_t>(length)};
        buffer.resize(buffer.size() * 2);
    }
}

void CString::Format(const wchar_t* format, ...)
{
    va_list args;
    va_start(args, format);
    m_strText = FormatV(format, args);
    va_end(args);
}

void CString::AppendFormat(const wchar_t* format, ...)
{
    va_list args;
    va_start(args, format);
    m_strText += FormatV(format, args);
    va_end(args);
}

CString& CString::Trim()
{
    size_t begin = 0;
    size_t end = m_strText.size();
    while (begin < end && afx::IsSpace(m_strText[begin]))
        ++begin;
    while (end > begin && afx::IsSpace(m_strText[end - 1]))
        --end;
    m_strText = m_strText.substr(begin, end - begin);
    return *this;
}
