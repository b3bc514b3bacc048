#pragma once

#include "host/IConfigList.h"
#include "refhost/HostItems.h"
#include "refhost/PrintConfigObject.h"

namespace refhost
{

class ConfigListObject : public IConfigList
{
public:
    explicit ConfigListObject(const std::vector<PrintConfig>& configs);

    std::vector<PrintConfig> Values() const;

    std::uint32_t GetCount() override;
    IPrintConfig* GetAt(std::uint32_t index) override;
    std::uint8_t AddConfig(IPrintConfig* source) override;
    void RemoveAt(std::uint32_t index) override;

private:
    HostItems<PrintConfigObject> m_configs;
};

} // namespace refhost
