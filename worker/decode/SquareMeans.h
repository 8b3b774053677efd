#pragma once

#include "Planes.h"

namespace imageworker {

/// One row of a plane made smaller by @p factor: the mean of each square of @p factor pixels that starts at
/// the left edge. @p rows: the samples that the squares touch. @p layout: how they lie over the @p width
/// pixels of the picture. Gives one sample of @p sampleBytes for each square; the last one may be cut by the
/// edge.
Bytes squareMeans(const PlaneView &rows, const PlaneLayout &layout, int width, int factor,
                  std::size_t sampleBytes);

} // namespace imageworker
