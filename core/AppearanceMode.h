#pragma once

#include "OptionEnum.h"

/// The user's choice between light and dark.
enum class AppearanceMode { system, light, dark };

template<>
inline constexpr std::array rawValues<AppearanceMode>{"System", "Light", "Dark"};
