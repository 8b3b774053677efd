#pragma once

#include "Result.h"

#include <cstdint>

namespace imageworker {

/// A part of a picture, in its pixels.
struct PixelRectangle
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const PixelRectangle &) const = default;
};

/// One of the eight orientations of a picture: columns may become rows, then each axis of the original may be
/// read backwards. For a pixel (x, y) of the result, (u, v) is (y, x) when transposed, else (x, y);
/// the pixel of the original is u or width - 1 - u, v or height - 1 - v.
struct Orientation
{
    bool transposed = false;
    bool mirroredX = false;
    bool mirroredY = false;

    bool operator==(const Orientation &) const = default;
};

/// Crop and orientation that make a stored picture the upright one that is shown. Steps can be added in any
/// order; each applies to what is shown so far.
class Transformation
{
public:
    Transformation() = default;
    explicit Transformation(PixelSize stored)
        : m_crop{0, 0, stored.width, stored.height}
    {}

    /// Of the stored picture.
    PixelRectangle crop() const { return m_crop; }
    Orientation orientation() const { return m_orientation; }
    PixelSize size() const;

    /// Adds @p quarters turns of 90 degrees anticlockwise (ISO/IEC 23008-12, 6.5.10).
    void rotateAnticlockwise(unsigned quarters);
    /// Exchanges top and bottom.
    void flipVertically();
    /// Exchanges left and right.
    void flipHorizontally();
    /// Adds a crop given in what is shown so far; false when nothing of it lies inside.
    bool cropTo(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height);
    /// Adds an Exif orientation of 1 to 8; other values change nothing.
    void applyExifOrientation(unsigned orientation);

    /// Takes the orientation of @p other, not its crop.
    void orientLike(const Transformation &other) { m_orientation = other.m_orientation; }

    /// Where the stored rectangle @p stored, which lies inside crop(), is shown.
    PixelRectangle shown(PixelRectangle stored) const;

private:
    PixelRectangle m_crop;
    Orientation m_orientation;
};

} // namespace imageworker
