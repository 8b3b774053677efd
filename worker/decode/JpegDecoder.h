#pragma once

#include "Raster.h"

#include <span>

namespace imageworker {

/// What a JPEG says before its first row.
struct JpegHeader
{
    PixelSize size;
    Bytes exif; ///< from the TIFF header on
    Bytes xmp;
};

/// Unreadable for other files and for a JPEG in CMYK.
Result<JpegHeader> readJpegHeader(std::span<const std::uint8_t> file);

/// The picture as it is stored, in sRGB by its profile; reduced by @p reduction, 1, 2, 4 or 8, on each side.
/// Unreadable when it is damaged or cut.
Result<Raster> decodeJpeg(std::span<const std::uint8_t> file, int reduction);

} // namespace imageworker
