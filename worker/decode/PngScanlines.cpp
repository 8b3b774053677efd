#include "PngScanlines.h"

#include "Vectorised.h"

#include <array>
#include <cstring>

namespace imageworker {

namespace {

enum class Filter : std::uint8_t { None, Sub, Up, Average, Paeth };

/// The channels of a pixel, processed at once; the fourth may be unused.
typedef std::int32_t Pixel __attribute__((vector_size(16)));
typedef std::uint8_t PixelBytes __attribute__((vector_size(4)));

template<std::size_t Length>
__attribute__((always_inline)) inline Pixel load(const std::uint8_t *bytes)
{
    PixelBytes pixel = {};
    std::memcpy(&pixel, bytes, Length);
    return __builtin_convertvector(pixel, Pixel);
}

template<std::size_t Length>
__attribute__((always_inline)) inline void store(Pixel pixel, std::uint8_t *bytes)
{
    const PixelBytes narrow = __builtin_convertvector(pixel, PixelBytes);
    std::memcpy(bytes, &narrow, Length);
}

__attribute__((always_inline)) inline Pixel absolute(Pixel value)
{
    return value < 0 ? -value : value;
}

/// W3C PNG, 9.4.
__attribute__((always_inline)) inline Pixel paeth(Pixel left, Pixel above, Pixel aboveLeft)
{
    const Pixel fromLeft = absolute(above - aboveLeft);
    const Pixel fromAbove = absolute(left - aboveLeft);
    const Pixel fromAboveLeft = absolute(left + above - aboveLeft - aboveLeft);
    const Pixel nearest = fromAbove <= fromAboveLeft ? above : aboveLeft;
    return ((fromLeft <= fromAbove) & (fromLeft <= fromAboveLeft)) ? left : nearest;
}

/// Adds to each pixel of @p row what is predicted by those to its left, above it and above that.
template<std::size_t Length>
__attribute__((always_inline)) inline void undo(Filter filter, std::span<std::uint8_t> row,
                                                const std::uint8_t *above)
{
    Pixel left = {};
    Pixel aboveLeft = {};
    for (std::size_t start = 0; start < row.size(); start += Length) {
        const Pixel aboveIt = load<Length>(above + start);
        const Pixel predicted = filter == Filter::Sub       ? left
                                : filter == Filter::Average ? (left + aboveIt) >> 1
                                                            : paeth(left, aboveIt, aboveLeft);
        left = (load<Length>(row.data() + start) + predicted) & 0xFF;
        aboveLeft = aboveIt;
        store<Length>(left, row.data() + start);
    }
}

template<std::size_t Length>
__attribute__((always_inline)) inline bool undoFilter(Filter filter, std::span<std::uint8_t> row,
                                                      const std::uint8_t *above)
{
    switch (filter) {
    case Filter::None:
        return true;
    case Filter::Sub:
        undo<Length>(Filter::Sub, row, above);
        return true;
    case Filter::Up:
        for (std::size_t index = 0; index < row.size(); ++index) {
            row[index] = static_cast<std::uint8_t>(row[index] + above[index]);
        }
        return true;
    case Filter::Average:
        undo<Length>(Filter::Average, row, above);
        return true;
    case Filter::Paeth:
        undo<Length>(Filter::Paeth, row, above);
        return true;
    }
    return false;
}

LUMAPORT_VECTORISED bool undoFilterOfThree(Filter filter, std::span<std::uint8_t> row,
                                           const std::uint8_t *above)
{
    return undoFilter<3>(filter, row, above);
}

LUMAPORT_VECTORISED bool undoFilterOfFour(Filter filter, std::span<std::uint8_t> row,
                                          const std::uint8_t *above)
{
    return undoFilter<4>(filter, row, above);
}

} // namespace

PngScanlines::PngScanlines(std::vector<std::span<const std::uint8_t>> data, std::size_t rowLength,
                           std::size_t pixelLength)
    : m_data(std::move(data))
    , m_pixelLength(pixelLength)
    , m_stream(std::make_unique<inflate_state>())
    , m_row(1 + rowLength)
    , m_previous(1 + rowLength)
{
    isal_inflate_init(m_stream.get());
    m_stream->crc_flag = ISAL_ZLIB;
}

std::optional<std::size_t> PngScanlines::unpack(std::span<std::uint8_t> output)
{
    m_stream->next_out = output.data();
    m_stream->avail_out = static_cast<std::uint32_t>(output.size());
    while (m_stream->avail_out > 0 && m_stream->block_state != ISAL_BLOCK_FINISH) {
        if (m_stream->avail_in == 0 && m_nextPart < m_data.size()) {
            const auto part = m_data[m_nextPart++];
            m_stream->next_in = const_cast<std::uint8_t *>(part.data());
            m_stream->avail_in = static_cast<std::uint32_t>(part.size());
        }
        const std::uint32_t room = m_stream->avail_out;
        const bool hadInput = m_stream->avail_in > 0;
        if (isal_inflate(m_stream.get()) != ISAL_DECOMP_OK || (!hadInput && m_stream->avail_out == room)) {
            return std::nullopt;
        }
    }
    return output.size() - m_stream->avail_out;
}

const std::uint8_t *PngScanlines::next()
{
    std::swap(m_row, m_previous);
    const bool isSound = unpack(m_row) == m_row.size();
    const auto filter = static_cast<Filter>(m_row.front());
    const std::span pixels = std::span(m_row).subspan(1);
    const std::uint8_t *above = m_previous.data() + 1;
    const bool isUndone = isSound && (m_pixelLength == 3 ? undoFilterOfThree(filter, pixels, above)
                                                         : undoFilterOfFour(filter, pixels, above));
    return isUndone ? pixels.data() : nullptr;
}

bool PngScanlines::hasEnded()
{
    std::array<std::uint8_t, 1> more = {};
    return unpack(more) == std::size_t{0};
}

} // namespace imageworker
