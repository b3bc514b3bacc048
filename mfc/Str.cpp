#include <afxstr.h>

#include <cwchar>
#include <cwctype>
#include <vector>

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
    const auto isSpace = [](wchar_t ch) { return std::iswspace(static_cast<wint_t>(ch)) != 0; };
    size_t begin = 0;
    size_t end = m_strText.size();
    while (begin < end && isSpace(m_strText[begin]))
        ++begin;
    while (end > begin && isSpace(m_strText[end - 1]))
        --end;
    m_strText = m_strText.substr(begin, end - begin);
    return *this;
}
