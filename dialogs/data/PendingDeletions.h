#pragma once

#include <vector>

// Ids of schemes that are deleted when the editor ends with OK.
class CPendingDeletions
{
public:
    void Add(int schemeId) { m_vecIds.push_back(schemeId); }

    // Each id once, the highest first: removing it moves none of the others.
    std::vector<int> InRemovalOrder() const;

private:
    std::vector<int> m_vecIds;
};
