#pragma once

#include "TiffFields.h"

namespace imageworker {

/// A new structure with the fields of the first, Exif, position and interoperability directories of @p tiff,
/// in its byte order, of at most @p limit bytes: without the maker note, then without the largest values one
/// after another.
Bytes rewrittenWithin(const TiffFields &tiff, std::size_t limit);

} // namespace imageworker
