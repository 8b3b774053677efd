#pragma once

#include "Result.h"

#include <cstdint>

namespace imageworker {

/// Consecutive rows of a picture that are decoded together.
struct Strip
{
    int top = 0;
    int height = 0;
    int tileCount = 0; ///< to be decoded before its rows are read; 0 when they are decoded already
};

/// An upright sRGB picture in strips. Several threads may decode tiles and read rows of decoded strips at
/// once. The caller never uses more strips than it has reserved.
class RowSource
{
public:
    virtual ~RowSource() = default;

    virtual PixelSize size() const = 0;
    virtual const std::vector<Strip> &strips() const = 0;

    /// Called once, before the first tile: how many consecutive strips must be in memory at once.
    virtual void reserveStrips(int) {}

    /// Decodes tile @p index of strip @p strip on thread @p worker.
    virtual Result<void> decodeTile(int /*worker*/, int /*strip*/, int /*index*/) { return {}; }

    /// Writes row @p y, counted from the picture's top, as red, green, blue and opacity; its strip is
    /// decoded.
    virtual void readRow(int strip, int y, std::uint8_t *rgba) const = 0;
};

} // namespace imageworker
