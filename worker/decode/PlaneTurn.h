#pragma once

#include "Planes.h"

namespace imageworker {

/// Copies @p source into @p target, turned; false, and nothing is copied, unless the target has the turned
/// size. Samples are of @p sampleBytes, 1 or 2.
bool copyTurned(const PlaneView &source, Orientation orientation, const PlaneView &target,
                std::size_t sampleBytes);

/// That part of @p plane alone.
PlaneView partOf(const PlaneView &plane, PixelRectangle part, std::size_t sampleBytes);

} // namespace imageworker
