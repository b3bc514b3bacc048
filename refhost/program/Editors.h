// The editors that the host offers.
#pragma once

#include <array>
#include <cstdint>

#include "host/IQuorvane.h"
#include "refhost/program/resource.h"

namespace refhost
{

struct Editor
{
    const wchar_t* name; // after --open
    int button;
    std::int32_t (IQuorvane::*run)(IHostData* data, IHostControl* control, const wchar_t* languageDir);
};

inline constexpr std::array<Editor, 3> EDITORS = {{
    {L"printmodes", IDC_PRINT_MODES, &IQuorvane::EditPrintModes},
    {L"factory", IDC_FACTORY_SCHEMES, &IQuorvane::EditFactorySchemes},
    {L"user", IDC_USER_SCHEMES, &IQuorvane::EditUserSchemes},
}};

} // namespace refhost
