#include "dialogs/data/PendingDeletions.h"

#include <algorithm>
#include <functional>

std::vector<int> CPendingDeletions::InRemovalOrder() const
{
    std::vector<int> ids = m_vecIds;
    std::sort(ids.begin(), ids.end(), std::greater<>());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    return ids;
}
