#pragma once

#include "tests/msabi/host/Runtime.h"

// The growing array of the host's own library: three pointers, as Microsoft's std::vector has them in a release build.
template <class Item>
class HostArray
{
public:
    unsigned Size() const { return static_cast<unsigned>(m_end - m_first); }
    Item& operator[](unsigned index) { return m_first[index]; }
    Item* begin() { return m_first; }
    Item* end() { return m_end; }
    const void* Storage() const { return m_first; }

    void Append(const Item& item)
    {
        if (m_end == m_limit)
            Grow();
        *m_end++ = item;
    }

    void RemoveAt(unsigned index)
    {
        for (Item* item = m_first + index; item + 1 < m_end; ++item)
            *item = item[1];
        --m_end;
    }

private:
    void Grow()
    {
        const unsigned size = Size();
        const unsigned room = size < 4 ? 4 : size + size / 2;
        Item* const grown = static_cast<Item*>(Allocate(room * sizeof(Item)));
        for (unsigned i = 0; i < size; ++i)
            grown[i] = m_first[i];
        Free(m_first);
        m_first = grown;
        m_end = grown + size;
        m_limit = grown + room;
    }

    Item* m_first = nullptr;
    Item* m_end = nullptr;
    Item* m_limit = nullptr;
};
