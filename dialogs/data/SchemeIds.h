#pragma once

// A scheme id names one scheme of either host list: 0 to 999 the index of a factory scheme, 1000 and above the index of
// a user scheme plus 1000. Negative: none. A factory scheme with a higher index has no id.
constexpr int NO_SCHEME = -1;
constexpr int FIRST_USER_SCHEME = 1000;

constexpr bool IsUserSchemeId(int id)
{
    return id >= FIRST_USER_SCHEME;
}

constexpr bool IsFactorySchemeId(int id)
{
    return id >= 0 && id < FIRST_USER_SCHEME;
}

constexpr int UserSchemeId(int index)
{
    return index + FIRST_USER_SCHEME;
}

// Negative where the id names no user scheme.
constexpr int UserSchemeIndex(int id)
{
    return id - FIRST_USER_SCHEME;
}
