#pragma once

#include "TiffFields.h"

namespace imageworker {

/// A new structure of at most @p limit bytes, in the byte order of @p tiff, with the fields of its first,
/// Exif, position and interoperability directories. Leaves out the maker note, then the largest values. Empty
/// when that is not enough.
Bytes rewrittenWithin(const TiffFields &tiff, std::size_t limit);

} // namespace imageworker
