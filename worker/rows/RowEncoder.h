#pragma once

#include "Result.h"

#include <functional>

namespace imageworker {

/// Writes row @p y of the picture, counted from its top, as red, green, blue and opacity.
using RowReader = std::function<void(int y, std::uint8_t *rgba)>;

/// Takes an upright picture in chunks of rows, from its top to its bottom.
class RowEncoder
{
public:
    enum class Order {
        OneAfterAnother, ///< encodeChunk() must be called for one chunk after the other
        AtOnce,          ///< and may be called for several at once
    };

    virtual ~RowEncoder() = default;

    virtual Order order() const = 0;

    /// Rows in each chunk but the last, which may have fewer.
    virtual int chunkHeight() const = 0;

    /// Called once before the first chunk.
    virtual Result<void> begin() { return {}; }

    /// Encodes rows @p top to @p top + @p height as chunk @p chunk, the first being 0.
    virtual Result<void> encodeChunk(int chunk, int top, int height, const RowReader &readRow) = 0;

    /// Called once after the last chunk.
    virtual Result<void> finish() { return {}; }
};

} // namespace imageworker
