#pragma once

#include "Photo.h"
#include "Source.h"

namespace imageworker {

/// Decodes @p photo whole and writes it, upright, in sRGB and at most @p maximumSide pixels on its longer
/// side, as PNG to the empty file @p output. Never enlarges.
Result<void> writeThumbnail(const Source &source, const Photo &photo, int output, int maximumSide);

} // namespace imageworker
