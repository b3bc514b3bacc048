#include "tests/msabi/ForeignHostTest.h"

#include <algorithm>

Lines operator+(Lines left, const Lines& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

std::string Text(const Lines& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

void ForeignHostTest::ExpectFirstChanges(const Lines& changes)
{
    Lines all = m_host.TakeChanges();
    all.resize(std::min(all.size(), changes.size()));
    EXPECT_EQ(Text(all), Text(changes));
}

void ForeignHostTest::ExpectLastChanges(const Lines& changes)
{
    Lines all = m_host.TakeChanges();
    all.erase(all.begin(), all.end() - static_cast<std::ptrdiff_t>(std::min(all.size(), changes.size())));
    EXPECT_EQ(Text(all), Text(changes));
}
