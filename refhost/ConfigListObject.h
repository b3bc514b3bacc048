#pragma once

#include "host/IConfigList.h"
#include "refhost/HostItems.h"
#include "refhost/PrintConfigObject.h"

namespace refhost
{

class CConfigListObject final : public IConfigList
{
public:
    explicit CConfigListObject(const std::vector<PrintConfig>& configs);

    std::vector<PrintConfig> Values() const;

    std::uint32_t GetCount() override;
    IPrintConfig* GetAt(std::uint32_t index) override;
    std::uint8_t AddConfig(IPrintConfig* source) override;
    void RemoveAt(std::uint32_t index) override;

private:
    CHostItems<CPrintConfigObject> m_configs;
};

} // namespace refhost
