#pragma once

#include "Result.h"

namespace imageworker {

/// Makes the packet @p xmp true of an upright copy of @p size: its orientation 1, its dimensions, its colour
/// space. Changes nothing else but the length of these values.
void describeCopyInXmp(Bytes &xmp, PixelSize size);

} // namespace imageworker
