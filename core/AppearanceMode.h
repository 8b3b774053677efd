#pragma once

#include "OptionEnum.h"

/// The user's choice between light and dark.
enum class AppearanceMode { system, light, dark };

template<>
struct OptionCases<AppearanceMode>
{
    static constexpr std::array<OptionCase<AppearanceMode>, 3> cases{{
        {AppearanceMode::system, "System"},
        {AppearanceMode::light, "Light"},
        {AppearanceMode::dark, "Dark"},
    }};
};
