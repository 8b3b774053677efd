#pragma once

#include "HeifFile.h"
#include "Raster.h"

namespace imageworker {

/// The red of @p picture as a grey AVC picture of full range, coded without loss, for an item of type "avc1".
CodedItem makeAvcItem(const Raster &picture);

} // namespace imageworker
