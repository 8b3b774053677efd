#pragma once

#include "Photo.h"
#include "Raster.h"

#include <functional>

namespace imageworker {

/// Lays the pictures of @p overlay over its canvas, in sRGB (ISO/IEC 23008-12, 6.6.2.2). @p decode gives one
/// of them whole.
Result<Raster> composeOverlay(const Overlay &overlay,
                              const std::function<Result<Raster>(const Picture &)> &decode);

} // namespace imageworker
