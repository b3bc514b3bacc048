#include "tests/machines/LargeMachines.h"

#include <string>
#include <vector>

namespace
{
// Makes the list count items long, by copying its items in turn.
template <class Item>
void Grow(std::vector<Item>& items, int count)
{
    const std::vector<Item> patterns = items;
    items.clear();
    for (int i = 0; i < count; ++i)
    {
        items.push_back(patterns[static_cast<std::size_t>(i) % patterns.size()]);
        items.back().name = "Number " + std::to_string(i);
    }
}

template <class Scheme>
void KeepFirstConfig(std::vector<Scheme>& schemes)
{
    std::vector<Scheme> kept;
    for (const Scheme& scheme : schemes)
        if (scheme.configIndex == 0)
            kept.push_back(scheme);
    schemes = kept;
}
} // namespace

refhost::Machine WithConfigs(refhost::Machine machine, int count)
{
    Grow(machine.configurations, count);
    return machine;
}

refhost::Machine WithFactorySchemes(refhost::Machine machine, int count)
{
    KeepFirstConfig(machine.factorySchemes);
    Grow(machine.factorySchemes, count);
    return machine;
}

refhost::Machine WithUserSchemes(refhost::Machine machine, int count)
{
    KeepFirstConfig(machine.userSchemes);
    Grow(machine.userSchemes, count);
    return machine;
}

refhost::Machine WithMaterials(refhost::Machine machine, int count)
{
    Grow(machine.materials, count);
    for (std::size_t i = 0; i < machine.materials.size(); ++i)
        machine.materials[i].id = static_cast<std::uint16_t>(i);
    return machine;
}

refhost::Machine WithHeads(refhost::Machine machine, int count)
{
    Grow(machine.headLayouts, count);
    for (std::size_t i = 0; i < machine.headLayouts.size(); ++i)
        machine.headLayouts[i].id = static_cast<std::uint16_t>(i);
    return machine;
}

refhost::Machine WithTwoLongLists(refhost::Machine machine, int count)
{
    machine = WithUserSchemes(machine, 2 * count);
    for (std::size_t i = 0; i < machine.userSchemes.size(); ++i)
        machine.userSchemes[i].configIndex = i % 2;
    for (std::size_t config : {0, 1})
        Grow(machine.configurations[config].modes, count);
    return machine;
}
