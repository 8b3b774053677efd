#pragma once

#include "Result.h"

namespace imageworker {

/// Makes the packet @p xmp true of an upright copy of @p size: its orientation 1, its dimensions, its colour
/// space, no word of gain maps and videos. Changes nothing else.
void describeCopyInXmp(Bytes &xmp, PixelSize size);

/// The contents of the APP1 segments of a JPEG that hold the packet @p xmp, each at most @p longest bytes. A
/// packet that fits in none is spread over several, and the first names them (XMP, Storage in
/// Files, 1.1.3.1).
std::vector<Bytes> xmpSegments(const Bytes &xmp, std::size_t longest);

} // namespace imageworker
