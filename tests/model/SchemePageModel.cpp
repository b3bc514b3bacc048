#include "tests/model/SchemePageModel.h"

void ShownScheme::Show(int id, int config)
{
    m_id = id;
    m_config = config;
}

refhost::FactoryScheme* ShownScheme::FactoryAt(int index) const
{
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < m_machine.factorySchemes.size() ? &m_machine.factorySchemes[at] : nullptr;
}

refhost::FactoryScheme* ShownScheme::Factory() const
{
    return m_id < kFirstUserScheme ? FactoryAt(m_id) : nullptr;
}

refhost::UserScheme* ShownScheme::User() const
{
    const auto at = static_cast<std::size_t>(m_id - kFirstUserScheme);
    return m_id >= kFirstUserScheme && at < m_machine.userSchemes.size() ? &m_machine.userSchemes[at] : nullptr;
}

refhost::SchemeValues* ShownScheme::Values() const
{
    refhost::SchemeValues* const user = User();
    return user ? user : Factory();
}

refhost::FactoryScheme* ShownScheme::FactoryBehind() const
{
    const refhost::UserScheme* const user = User();
    return user ? FactoryAt(user->baseScheme) : Factory();
}

const refhost::ParamTable* SchemePageModel::Table(std::uint32_t id) const
{
    for (const refhost::ParamTable& table : Machine().paramTables)
        if (table.id == id)
            return &table;
    return nullptr;
}
