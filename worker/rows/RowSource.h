#pragma once

#include "Result.h"

#include <cstdint>

namespace imageworker {

/// Consecutive rows of a picture that become ready together.
struct Strip
{
    int top = 0;
    int height = 0;
    int tileCount = 0; ///< what must be decoded before its rows can be read; 0 where all is decoded already
};

/// An upright sRGB picture that comes in strips. Tiles of different strips may be decoded and rows of ready
/// strips be read on several threads at once; the caller sees to it that no more strips are in use than it
/// asked to hold.
class RowSource
{
public:
    virtual ~RowSource() = default;

    virtual PixelSize size() const = 0;
    virtual const std::vector<Strip> &strips() const = 0;

    /// Called once, before the first tile: how many consecutive strips must be held at once.
    virtual void hold(int strips) = 0;

    /// Decodes tile @p index of strip @p strip with what belongs to thread @p worker.
    virtual Result<void> decodeTile(int worker, int strip, int index) = 0;

    /// Writes row @p y, 0 being the picture's top, as red, green, blue and opacity; its strip is ready.
    virtual void readRow(int strip, int y, std::uint8_t *rgba) const = 0;
};

} // namespace imageworker
