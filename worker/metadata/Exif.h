#pragma once

#include "Transformation.h"

#include <span>

namespace imageworker {

/// The TIFF structure in an "Exif" item, which starts with the offset to it (ISO/IEC 23008-12, A.2.1). Empty
/// when there is none.
Bytes tiffOfExifItem(std::span<const std::uint8_t> item);

/// Orientation, 1 to 8 (Exif 2.32, 4.6.4, tag 0x0112); 1 when it is missing or invalid.
unsigned exifOrientation(std::span<const std::uint8_t> tiff);

/// Changes @p tiff to describe an sRGB copy after @p transformation: orientation 1, dimensions, colour space
/// and subject area. Removes the embedded preview, which shows the original. Clears bytes that are no TIFF
/// structure.
void describeCopy(Bytes &tiff, const Transformation &transformation);

/// @p tiff in at most @p limit bytes: without the maker note, then without its largest values. Call after
/// describeCopy(). Empty only when nothing of it can be parsed.
Bytes exifWithin(const Bytes &tiff, std::size_t limit);

} // namespace imageworker
