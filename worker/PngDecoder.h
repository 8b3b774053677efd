#pragma once

#include "Raster.h"

#include <span>

namespace imageworker {

struct PngHeader
{
    PixelSize size;
    Bytes exif; ///< from the TIFF header on
    Bytes xmp;
    Bytes iccProfile;
};

/// Size, metadata and profile of a PNG; unreadable unless its end is there.
Result<PngHeader> readPngHeader(std::span<const std::uint8_t> file);

/// The picture in sRGB.
Result<Raster> decodePng(std::span<const std::uint8_t> file);

} // namespace imageworker
