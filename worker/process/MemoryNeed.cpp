#include "MemoryNeed.h"

#include "Pipeline.h"

#include <algorithm>

namespace imageworker {

namespace {

std::uint64_t area(std::int64_t width, std::int64_t height)
{
    return static_cast<std::uint64_t>(width * height);
}

/// The pixels of the largest picture that decoding @p picture has in memory; each may be cropped afterwards.
std::uint64_t largestPicture(const Picture &picture)
{
    std::uint64_t largest = 0;
    if (const auto *grid = std::get_if<TileGrid>(&picture.content)) {
        largest = std::max(area(grid->canvas.width, grid->canvas.height),
                           area(std::int64_t{grid->tile.width} * grid->columns,
                                std::int64_t{grid->tile.height} * grid->rows));
    } else {
        const auto &overlay = std::get<Overlay>(picture.content);
        largest = area(overlay.canvas.width, overlay.canvas.height);
        for (const Overlay::Layer &layer : overlay.layers) {
            largest = std::max(largest, largestPicture(*layer.picture));
        }
    }
    return picture.alpha ? std::max(largest, largestPicture(*picture.alpha)) : largest;
}

} // namespace

std::uint64_t memoryNeeded(const Photo &photo, std::uint64_t fileLength)
{
    constexpr std::uint64_t Mebibyte = 1U << 20U;
    // Tables, colour transforms, the heap that the libraries had before.
    constexpr std::uint64_t Fixed = 128 * Mebibyte;
    // Its stack and its encoder's buffers.
    constexpr std::uint64_t OfThread = 16 * Mebibyte;
    // An overlay has its canvas, a layer and that layer's decoder in memory: 4 bytes each, and up to 6. A
    // progressive JPEG has its coefficients and its raster: 6 and 4. Most photos are decoded in strips.
    constexpr std::uint64_t OfPixel = 16;
    // Coded data are copied once for the decoder.
    constexpr std::uint64_t OfFileByte = 2;
    const auto *picture = std::get_if<Picture>(&photo.picture);
    const PixelSize shown = photo.transformation().size();
    const std::uint64_t pixels = picture ? largestPicture(*picture) : area(shown.width, shown.height);
    return Fixed + OfThread * static_cast<std::uint64_t>(availableWorkers()) + OfPixel * pixels +
           OfFileByte * fileLength;
}

} // namespace imageworker
