#pragma once

#include "host/IPrintConfig.h"
#include "refhost/HostItems.h"
#include "refhost/Machine.h"
#include "refhost/PrintModeObject.h"

namespace refhost
{

class CPrintConfigObject final : public IPrintConfig
{
public:
    explicit CPrintConfigObject(const PrintConfig& config);

    // With the modes as they are now.
    PrintConfig Values() const;

    void SetName(const char* name) override;
    void SetXResolution(std::int32_t dpi) override;
    void SetYResolution(std::int32_t dpi) override;
    void SetColorCount(std::int32_t count) override;
    void SetDotBits(std::int32_t bits) override;
    void SetEnabled(std::int32_t enabled) override;
    const char* GetName() override;
    std::uint16_t GetXResolution() override;
    std::uint16_t GetYResolution() override;
    std::uint8_t GetColorCount() override;
    std::uint8_t GetDotBits() override;
    std::int32_t GetEnabled() override;
    std::uint32_t GetModeCount() override;
    IPrintMode* GetMode(std::uint32_t index) override;
    IPrintMode* AddMode() override;
    void RemoveMode(std::uint32_t index) override;

private:
    PrintConfig m_config; // its modes lie in m_modes
    CHostItems<CPrintModeObject> m_modes;
};

} // namespace refhost
