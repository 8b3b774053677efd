#pragma once

#include "Result.h"

namespace imageworker {

/// What a camera's Exif says when a test makes it.
struct ExifRecipe
{
    unsigned orientation = 1;
    std::size_t makerNoteLength = 0; ///< its bytes are 'N'
    std::size_t previewLength = 0;   ///< its bytes are 'P'; there is none without
};

/// A little-endian TIFF structure with the maker "Lens", the date 2024:05:06 07:08:09, and a position: 54
/// degrees and 30 minutes north, 10 degrees and 15 minutes east. The preview does not lie at its end.
Bytes makeExif(const ExifRecipe &recipe);

} // namespace imageworker
