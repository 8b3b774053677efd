#pragma once

#include "Result.h"

namespace imageworker {

/// What goes into a copy beside its pixels.
struct CopyMetadata
{
    Bytes exif; ///< from the TIFF header on; describes the copy, not the photo
    Bytes xmp;
};

} // namespace imageworker
