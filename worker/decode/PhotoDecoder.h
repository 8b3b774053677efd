#pragma once

#include "Photo.h"
#include "RowSource.h"
#include "Source.h"

#include <memory>

namespace imageworker {

/// The rows of @p photo, upright and in sRGB, for @p workers threads. Opacity, overlays and plain files
/// cannot be decoded in strips: they are decoded in this call. With a @p smallestSide, in pixels, the picture
/// is made smaller by a whole number where that saves work; its longer side then has at least that many
/// pixels, or those of the photo if these are fewer. 0 asks for the full size. All arguments must outlive the
/// result.
Result<std::unique_ptr<RowSource>> openPhoto(const Source &source, const Photo &photo, int workers,
                                             int smallestSide = 0);

} // namespace imageworker
