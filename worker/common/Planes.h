#pragma once

#include "Photo.h"

#include <array>
#include <cstddef>

namespace imageworker {

/// Format of a decoded picture's samples.
struct SampleFormat
{
    int depth = 8;      ///< bits of a sample; above 8 each takes two bytes, in the machine's order
    int planeCount = 3; ///< 1: brightness alone; 3: brightness and two colour planes, or green, blue and red
    int chromaShiftX = 0; ///< the colour planes' width is the picture's, shifted right by this
    int chromaShiftY = 0;
    bool isRgb = false;    ///< planes are green, blue and red
    CodePoints codePoints; ///< as the coded picture itself says

    std::size_t sampleBytes() const { return depth > 8 ? 2 : 1; }

    /// Whether rows of one can be taken for rows of the other.
    bool isLike(const SampleFormat &other) const
    {
        return depth == other.depth && planeCount == other.planeCount && chromaShiftX == other.chromaShiftX &&
               chromaShiftY == other.chromaShiftY && isRgb == other.isRgb;
    }
};

/// One plane that lies in another's memory.
struct PlaneView
{
    std::uint8_t *data = nullptr;
    std::ptrdiff_t stride = 0; ///< bytes from a row to the next
    int width = 0;             ///< in samples
    int height = 0;
};

/// A decoded picture in its decoder's memory, valid until the decoder is used again.
struct DecodedPicture
{
    SampleFormat format;
    std::array<PlaneView, 3> planes;
};

} // namespace imageworker
