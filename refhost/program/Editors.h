// The editors that the host offers: the one place where a new one is switched on.
#pragma once

#include <array>
#include <cstdint>

#include "host/IQuorvane.h"
#include "refhost/program/resource.h"

namespace refhost
{

struct Editor
{
    const wchar_t* name;  // after --open
    const wchar_t* title; // in messages
    int button;
    std::int32_t (IQuorvane::*run)(IHostData* data, IHostControl* control, const wchar_t* languageDir);
    bool exists;
};

inline constexpr std::array<Editor, 3> kEditors = {{
    {L"printmodes", L"print-mode editor", IDC_PRINT_MODES, &IQuorvane::EditPrintModes, true},
    {L"factory", L"factory scheme editor", IDC_FACTORY_SCHEMES, &IQuorvane::EditFactorySchemes, true},
    {L"user", L"user scheme editor", IDC_USER_SCHEMES, &IQuorvane::EditUserSchemes, true},
}};

} // namespace refhost
