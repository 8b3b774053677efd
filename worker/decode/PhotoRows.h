#pragma once

#include "Photo.h"
#include "RowSource.h"
#include "Source.h"

#include <memory>

namespace imageworker {

/// The rows of @p photo, upright and in sRGB, to be read with @p workers threads. Its opacity, and pictures
/// that cannot be decoded in strips (overlays, a JPEG or PNG), are decoded here already. All arguments must
/// outlive the result.
Result<std::unique_ptr<RowSource>> openRows(const Source &source, const Photo &photo, int workers);

/// The same, but where it saves work in a picture made smaller by a whole number: its longer side is at least
/// @p smallestSide, unless the photo itself has less.
Result<std::unique_ptr<RowSource>> openReducedRows(const Source &source, const Photo &photo, int workers,
                                                   int smallestSide);

} // namespace imageworker
