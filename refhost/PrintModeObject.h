#pragma once

#include "host/IPrintMode.h"
#include "refhost/Machine.h"

namespace refhost
{

class CPrintModeObject final : public IPrintMode
{
public:
    explicit CPrintModeObject(const PrintMode& mode);

    const PrintMode& Values() const { return m_mode; }

    void SetName(const char* name) override;
    void SetPassCount(std::int32_t count) override;
    void SetDisabled(std::int32_t disabled) override;
    void SetXResolutionIndex(std::int32_t index) override;
    void SetHeadDataMode(std::uint8_t dataMode, std::uint32_t row) override;
    void SetSmallDotCompensation(float value, std::uint32_t group) override;
    void SetMediumDotCompensation(float value, std::uint32_t group) override;
    void SetLargeDotCompensation(float value, std::uint32_t group) override;
    void SetFrontCompensation(std::int32_t enabled, std::uint32_t group) override;
    void SetBackCompensation(std::int32_t enabled, std::uint32_t group) override;
    void SetResident(std::uint8_t resident) override;

    const char* GetName() override;
    std::uint16_t GetPassCount() override;
    std::uint8_t GetDisabled() override;
    std::int32_t GetXResolutionIndex() override;
    std::uint8_t GetHeadDataMode(std::uint32_t row) override;
    float GetSmallDotCompensation(std::uint32_t group) override;
    float GetMediumDotCompensation(std::uint32_t group) override;
    float GetLargeDotCompensation(std::uint32_t group) override;
    std::uint8_t GetFrontCompensation(std::uint32_t group) override;
    std::uint8_t GetBackCompensation(std::uint32_t group) override;
    std::uint8_t GetResident() override;

private:
    PrintMode m_mode;
};

} // namespace refhost
