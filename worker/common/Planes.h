#pragma once

#include "Photo.h"

#include <array>
#include <cstddef>

namespace imageworker {

/// How the samples of a plane lie over the pixels of the picture: each covers a block of pixels, and the
/// first may begin outside the picture.
struct PlaneLayout
{
    int shiftX = 0; ///< a sample covers 1 << shift pixels
    int shiftY = 0;
    int phaseX = 0; ///< pixels of the first sample that lie outside the picture
    int phaseY = 0;

    bool operator==(const PlaneLayout &) const = default;

    /// Where the sample of a pixel lies in the plane.
    int column(int x) const { return (x + phaseX) >> shiftX; }
    int row(int y) const { return (y + phaseY) >> shiftY; }

    /// The samples of all @p pixels.
    PixelRectangle samplesOf(PixelRectangle pixels) const
    {
        const int left = column(pixels.x);
        const int top = row(pixels.y);
        return {left, top, column(pixels.x + pixels.width - 1) - left + 1,
                row(pixels.y + pixels.height - 1) - top + 1};
    }
};

/// Format of a decoded picture's samples.
struct SampleFormat
{
    int depth = 8;      ///< bits of a sample; above 8 each takes two bytes, in the machine's order
    int planeCount = 3; ///< 1: brightness alone; 3: brightness and two colour planes, or green, blue and red
    PlaneLayout chroma; ///< of the second and the third plane
    bool isRgb = false; ///< planes are green, blue and red
    CodePoints codePoints; ///< as the coded picture itself says

    std::size_t sampleBytes() const { return depth > 8 ? 2 : 1; }
    std::size_t planes() const { return static_cast<std::size_t>(planeCount); }
    PlaneLayout layoutOf(std::size_t plane) const { return plane == 0 ? PlaneLayout() : chroma; }

    /// Whether rows of one can be taken for rows of the other.
    bool isLike(const SampleFormat &other) const
    {
        return depth == other.depth && planeCount == other.planeCount && chroma == other.chroma &&
               isRgb == other.isRgb;
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
