#include "tests/msabi/host/TextBuffer.h"

void TextBuffer::Clear()
{
    m_length = 0;
    m_text[0] = '\0';
}

TextBuffer& TextBuffer::Add(const char* text)
{
    for (; *text; ++text)
        AddCharacter(*text);
    return *this;
}

TextBuffer& TextBuffer::Add(long long number)
{
    if (number < 0)
        AddCharacter('-');
    // Of 32 bits, as every number here: a longer one would need the run-time library to divide it.
    unsigned long rest = static_cast<unsigned long>(number < 0 ? -number : number);
    char digits[20] = {};
    char* digit = digits + sizeof(digits) - 1;
    do
        *--digit = static_cast<char>('0' + rest % 10);
    while ((rest /= 10) != 0);
    return Add(digit);
}

TextBuffer& TextBuffer::Add(float number)
{
    const int thousandths = static_cast<int>(number * 1000.0f + (number < 0 ? -0.5f : 0.5f));
    const int rest = thousandths < 0 ? -(thousandths % 1000) : thousandths % 1000;
    if (thousandths < 0 && thousandths > -1000)
        AddCharacter('-');
    Add(static_cast<long long>(thousandths / 1000));
    const char decimals[] = {'.', static_cast<char>('0' + rest / 100), static_cast<char>('0' + rest / 10 % 10),
                             static_cast<char>('0' + rest % 10), '\0'};
    return Add(decimals);
}

void TextBuffer::AddCharacter(char character)
{
    if (m_length + 1 == kRoom)
        return;
    m_text[m_length++] = character;
    m_text[m_length] = '\0';
}
