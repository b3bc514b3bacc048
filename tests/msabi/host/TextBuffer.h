#pragma once

#include "tests/msabi/host/Runtime.h"

// Lines of text in a fixed room; what does not fit is left out.
class TextBuffer
{
public:
    const char* Text() const { return m_text; }
    void Clear();

    TextBuffer& Add(const char* text);
    TextBuffer& Add(long long number);
    // With three decimals.
    TextBuffer& Add(float number);

private:
    static constexpr unsigned kRoom = 1 << 18;

    void AddCharacter(char character);

    unsigned m_length = 0;
    char m_text[kRoom] = {};
};
