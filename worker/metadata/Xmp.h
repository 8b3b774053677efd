#pragma once

#include "Result.h"

namespace imageworker {

/// Changes the packet @p xmp to describe an upright sRGB copy of @p size: orientation 1, dimensions and
/// colour space. Removes properties of gain maps and videos. Changes nothing else.
void describeCopyInXmp(Bytes &xmp, PixelSize size);

/// The APP1 segments of a JPEG that hold the packet @p xmp, each of at most @p longest bytes. A longer packet
/// is split into several; the first segment then refers to the others (XMP, Storage in Files, 1.1.3.1).
std::vector<Bytes> xmpSegments(const Bytes &xmp, std::size_t longest);

} // namespace imageworker
