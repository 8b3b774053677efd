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
    std::span<const std::uint8_t>
        ignoredGamma; ///< content of a "gAMA" chunk that does not count, in the file
    /// The compressed data, which lie in the file, of a picture that PngScanlines can read: 8 bits, RGB or
    /// RGBA, in sRGB or with a profile, not interlaced. Empty for others.
    std::vector<std::span<const std::uint8_t>> data;
    bool isGrey = false;
    int channels = 0; ///< 3 or 4 where there are such data
};

/// Size, metadata and profile of a PNG; unreadable unless its end is there.
Result<PngHeader> readPngHeader(std::span<const std::uint8_t> file);

/// The picture in sRGB. It may be made smaller by @p reduction on each side, or have its full size.
Result<Raster> decodePng(std::span<const std::uint8_t> file, int reduction);

} // namespace imageworker
