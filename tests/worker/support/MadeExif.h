#pragma once

#include "Result.h"

namespace imageworker {

/// What a camera's Exif says when a test makes it.
struct ExifRecipe
{
    bool isLittleEndian = true;
    unsigned orientation = 1;
    std::size_t makerNoteLength = 0; ///< its bytes are 'N'
    std::size_t previewLength = 0;   ///< its bytes are 'P'; there is none without
    bool isPreviewLast = false;
};

/// A TIFF structure with the maker "Lens", the model "Camera of some maker", the date 2024:05:06 07:08:09,
/// 4032 x 3024 pixels, a subject of 200 x 100 around (1000, 500), and a position: 54 degrees and 30 minutes
/// north, 10 degrees and 15 minutes east.
Bytes makeExif(const ExifRecipe &recipe);

} // namespace imageworker
