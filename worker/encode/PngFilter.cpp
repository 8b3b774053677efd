#include "PngFilter.h"

#include "Vectorised.h"

#include <algorithm>
#include <cstdlib>

namespace imageworker {

namespace {

constexpr std::size_t PixelLength = 4;
constexpr std::uint8_t SubNumber = 1;
constexpr std::uint8_t PaethNumber = 4;

LUMAPORT_VECTORISED void subtractPaeth(const std::uint8_t *__restrict row,
                                       const std::uint8_t *__restrict above, std::size_t length,
                                       std::uint8_t *__restrict filtered)
{
    for (std::size_t index = PixelLength; index < length; ++index) {
        const auto left = static_cast<std::int16_t>(row[index - PixelLength]);
        const auto up = static_cast<std::int16_t>(above[index]);
        const auto corner = static_cast<std::int16_t>(above[index - PixelLength]);
        // Distances of left + up - corner to each of the three.
        const auto toLeft = static_cast<std::int16_t>(up - corner);
        const auto toUp = static_cast<std::int16_t>(left - corner);
        const auto toCorner = static_cast<std::int16_t>(toLeft + toUp);
        const auto leftDistance = static_cast<std::int16_t>(toLeft < 0 ? -toLeft : toLeft);
        const auto upDistance = static_cast<std::int16_t>(toUp < 0 ? -toUp : toUp);
        const auto cornerDistance = static_cast<std::int16_t>(toCorner < 0 ? -toCorner : toCorner);
        const std::int16_t upOrCorner = upDistance <= cornerDistance ? up : corner;
        const bool isLeft = (leftDistance <= upDistance) & (leftDistance <= cornerDistance);
        const std::int16_t nearest = isLeft ? left : upOrCorner;
        filtered[index] = static_cast<std::uint8_t>(row[index] - nearest);
    }
}

} // namespace

void filterSub(const std::uint8_t *row, std::size_t length, std::uint8_t *filtered)
{
    *filtered++ = SubNumber;
    std::copy_n(row, std::min(length, PixelLength), filtered);
    for (std::size_t index = PixelLength; index < length; ++index) {
        filtered[index] = static_cast<std::uint8_t>(row[index] - row[index - PixelLength]);
    }
}

void filterPaeth(const std::uint8_t *row, const std::uint8_t *above, std::size_t length,
                 std::uint8_t *filtered)
{
    *filtered++ = PaethNumber;
    for (std::size_t index = 0; index < std::min(length, PixelLength); ++index) {
        // Without pixels to the left the prediction is the pixel above.
        filtered[index] = static_cast<std::uint8_t>(row[index] - above[index]);
    }
    subtractPaeth(row, above, length, filtered);
}

} // namespace imageworker
