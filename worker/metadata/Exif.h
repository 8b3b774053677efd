#pragma once

#include "Upright.h"

#include <span>

namespace imageworker {

/// The TIFF structure inside an "Exif" item, which starts with the distance to it (ISO/IEC 23008-12, A.2.1).
/// Empty when there is none.
Bytes tiffOfExifItem(std::span<const std::uint8_t> item);

/// Orientation, 1 to 8 (Exif 2.32, 4.6.4, tag 0x0112); 1 when it is missing or senseless.
unsigned exifOrientation(std::span<const std::uint8_t> tiff);

/// Makes @p tiff true of an sRGB copy turned and cropped as @p upright: orientation 1, its dimensions, its
/// colour space, where its subject is; the embedded preview, which shows the photo as it was, is taken out.
/// What is no TIFF structure becomes empty.
void describeCopy(Bytes &tiff, const Upright &upright);

/// @p tiff within @p limit bytes: without the maker note, then without its largest values, but never dropped
/// whole. Call after describeCopy(). Empty only when nothing of it could be understood.
Bytes exifWithin(const Bytes &tiff, std::size_t limit);

} // namespace imageworker
