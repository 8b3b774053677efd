#pragma once

#include "Raster.h"

#include <png.h>

namespace imageworker {

/// What stands in a JPEG or PNG beside its pixels; each is left out when empty.
struct FileMetadata
{
    Bytes iccProfile;
    Bytes exif; ///< from the TIFF header on
    Bytes xmp;
};

/// How a JPEG is stored.
struct JpegForm
{
    int quality = 100;
    int sampling = 1; ///< pixels that share a colour, on each side
    bool isProgressive = false;
};

/// By libjpeg. Opacity is ignored.
Bytes makeJpeg(const Raster &picture, const FileMetadata &metadata, const JpegForm &form = {});

/// How a PNG is stored.
struct PngForm
{
    int filters = PNG_ALL_FILTERS;
    bool hasOpacity = true;
    bool isInterlaced = false;
    bool isSrgb = true; ///< and says so, unless it has a profile
    bool hasLinearGamma = false;
    int chunkLength = 8192;
    int depth = 8; ///< or 16
};

/// By libpng.
Bytes makePng(const Raster &picture, const FileMetadata &metadata, const PngForm &form = {});

} // namespace imageworker
