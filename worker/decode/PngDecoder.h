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
    /// Of a picture of 8 bits in sRGB or with a profile, not interlaced, with an opacity for each pixel or
    /// none: its packed data, which lie in the file. Empty for other kinds.
    std::vector<std::span<const std::uint8_t>> data;
    bool isGrey = false;
    int channels = 0; ///< of such a picture, 3 or 4
};

/// Size, metadata and profile of a PNG; unreadable unless its end is there.
Result<PngHeader> readPngHeader(std::span<const std::uint8_t> file);

/// The picture in sRGB. A @p reduction of more than 1 allows to make it so many times smaller on each side.
Result<Raster> decodePng(std::span<const std::uint8_t> file, unsigned reduction);

} // namespace imageworker
