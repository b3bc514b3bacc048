#pragma once

#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace refhost
{

// The items of a list. Each keeps its address until it is removed.
template <class Item>
class CHostItems
{
public:
    CHostItems() = default;

    template <class Record>
    explicit CHostItems(const std::vector<Record>& records)
    {
        for (const Record& record : records)
            Add(record);
    }

    template <class... Args>
    Item& Add(Args&&... args)
    {
        m_vecItems.push_back(std::make_unique<Item>(std::forward<Args>(args)...));
        return *m_vecItems.back();
    }

    // Null beyond the end.
    Item* At(std::uint32_t index) const { return index < m_vecItems.size() ? m_vecItems[index].get() : nullptr; }
    std::uint32_t Count() const { return static_cast<std::uint32_t>(m_vecItems.size()); }

    // Later items move down. Nothing happens beyond the end.
    void Remove(std::uint32_t index)
    {
        if (index < m_vecItems.size())
            m_vecItems.erase(m_vecItems.begin() + index);
    }

    // What the items hold now.
    auto Values() const
    {
        std::vector<std::decay_t<decltype(std::declval<const Item&>().Values())>> values;
        values.reserve(m_vecItems.size());
        for (const auto& item : m_vecItems)
            values.push_back(item->Values());
        return values;
    }

    auto begin() const { return m_vecItems.begin(); }
    auto end() const { return m_vecItems.end(); }

private:
    std::vector<std::unique_ptr<Item>> m_vecItems;
};

} // namespace refhost
