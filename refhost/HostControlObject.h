#pragma once

#include <functional>

#include "host/IHostControl.h"
#include "refhost/Host.h"

namespace refhost
{

class CHostControlObject final : public IHostControl
{
public:
    void OnSave(std::function<void(SaveRequest)> handler) { m_handler = std::move(handler); }

    void SaveParameters(std::uint32_t kind) override;
    void SaveCustomEclosionSet() override;

private:
    void Ask(SaveRequest request) const;

    std::function<void(SaveRequest)> m_handler;
};

} // namespace refhost
