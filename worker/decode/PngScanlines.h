#pragma once

#include "Result.h"

#include <isa-l.h>
#include <memory>
#include <optional>
#include <span>

namespace imageworker {

/// Reads the rows of a PNG that is not interlaced, one after another (W3C PNG, 9 and 10). Takes half the time
/// of libpng.
class PngScanlines
{
public:
    /// @p data: what the "IDAT" chunks hold, in their order; must outlive this. Rows are of @p rowLength
    /// bytes, pixels of @p pixelLength, 3 or 4.
    PngScanlines(std::vector<std::span<const std::uint8_t>> data, std::size_t rowLength,
                 std::size_t pixelLength);

    /// The next row, which stays until the one after it is asked for; null when the data break off or are
    /// damaged.
    const std::uint8_t *next();

    /// Whether the data end here and their checksum is right.
    bool hasEnded();

private:
    /// Decompresses until @p output is full or the data end; gives the number of bytes written. Nothing when
    /// the data break off or are damaged.
    std::optional<std::size_t> unpack(std::span<std::uint8_t> output);

    std::vector<std::span<const std::uint8_t>> m_data;
    std::size_t m_nextPart = 0;
    std::size_t m_pixelLength;
    std::unique_ptr<inflate_state> m_stream;
    Bytes m_row; ///< its filter's number, then its bytes
    Bytes m_previous;
};

} // namespace imageworker
