#pragma once

#include "HeifFile.h"
#include "Raster.h"

namespace imageworker {

/// The red of @p picture as a grey AVC picture of full range, coded without loss, for an item of type "avc1".
/// Its first @p hiddenColumns, an even number, lie left of what decoders are told to show. Each slice has 16
/// rows at least.
CodedItem makeAvcItem(const Raster &picture, int hiddenColumns = 0, int slices = 1);

/// Its red, green and blue as brightness, Cb and Cr, of which each pixel has its own, coded without loss.
/// Nothing says which colours that makes.
CodedItem makeAvcColourItem(const Raster &picture);

} // namespace imageworker
