#pragma once

#include "host/IQuorvane.h"

class CQuorvaneIns final : public IQuorvane
{
public:
    void* Destroy(std::uint32_t flags) override;
    std::int32_t EditPrintModes(IHostData* data, IHostControl* control, const wchar_t* languageDir) override;
    std::int32_t EditFactorySchemes(IHostData* data, IHostControl* control, const wchar_t* languageDir) override;
    std::int32_t EditUserSchemes(IHostData* data, IHostControl* control, const wchar_t* languageDir) override;
};
