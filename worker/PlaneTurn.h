#pragma once

#include "Planes.h"

namespace imageworker {

/// Copies @p source into @p target, turned; the target has the turned size. Samples are of @p sampleBytes, 1
/// or 2.
void copyTurned(const PlaneView &source, Turn turn, const PlaneView &target, std::size_t sampleBytes);

/// The part of @p plane that starts at (@p x, @p y).
PlaneView partOf(const PlaneView &plane, PixelRectangle part, std::size_t sampleBytes);

} // namespace imageworker
