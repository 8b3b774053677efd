#pragma once

#include "Photo.h"
#include "Source.h"

namespace imageworker {

/// Decodes @p photo whole and writes it, upright, in sRGB and at most @p maximumSide pixels on its longer
/// side, to the file @p output: row by row, four bytes for each pixel (red, green, blue, opacity). Returns
/// its size. Never enlarges.
Result<PixelSize> writeThumbnail(const Source &source, const Photo &photo, int output, int maximumSide);

} // namespace imageworker
