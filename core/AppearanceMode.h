#pragma once

#include "OptionEnum.h"

/// The user's choice between light and dark.
enum class AppearanceMode { system, light, dark };

template<>
struct OptionCases<AppearanceMode>
{
    static constexpr std::array cases{OptionCase{AppearanceMode::system, "System"},
                                      OptionCase{AppearanceMode::light, "Light"},
                                      OptionCase{AppearanceMode::dark, "Dark"}};
};
