#pragma once

#include "Raster.h"

namespace imageworker {

/// What stands in a JPEG or PNG beside its pixels; each is left out when empty.
struct PlainMetadata
{
    Bytes iccProfile;
    Bytes exif; ///< from the TIFF header on
    Bytes xmp;
};

enum class JpegOrder { Rows, Scans };

/// By libjpeg, of the best quality and without subsampling. Opacity is ignored.
Bytes makeJpeg(const Raster &picture, const PlainMetadata &metadata, JpegOrder order = JpegOrder::Rows);

/// By libpng.
Bytes makePng(const Raster &picture, const PlainMetadata &metadata);

} // namespace imageworker
