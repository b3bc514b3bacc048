#pragma once

#include "tests/msabi/host/Interfaces.h"
#include "tests/msabi/host/Report.h"
#include "tests/msabi/host/TableWatch.h"

// A name in a room of its own, as the host's records have it.
class Name
{
public:
    const char* Text() const { return m_text; }
    void Set(const char* text)
    {
        unsigned length = 0;
        for (; text && text[length] && length + 1 < sizeof(m_text); ++length)
            m_text[length] = text[length];
        m_text[length] = '\0';
        Require(!text || !text[length], "a name is longer than its room");
    }

private:
    char m_text[64] = {};
};

template <class Item>
Item* ItemAt(HostArray<Item*>& items, unsigned index)
{
    return Require(index < items.Size(), "the index is out of range") ? items[index] : nullptr;
}

template <class Item>
void RemoveItem(HostArray<Item*>& items, unsigned index)
{
    if (!Require(index < items.Size(), "the index is out of range"))
        return;
    Remove(items[index]);
    items.RemoveAt(index);
}

// What a list of the host is whose only operations are GetCount and GetAt.
template <class Interface, class Contract, class Item>
class ReadOnlyList final : public Object<Interface>
{
public:
    unsigned GetCount() override { return items.Size(); }
    Contract* GetAt(unsigned index) override { return ItemAt(items, index); }

    HostArray<Item*> items;
};

// What has a name and nothing else.
template <class Interface>
class Named final : public Object<Interface>
{
public:
    const char* GetName() override { return name.Text(); }

    Name name;
};
