// Feeds the container reader. Whatever it accepts must be coherent: that is what the decoding relies on.

#include "PhotoReader.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace imageworker;
    const auto source = sourceOfBytes({data, size});
    const auto photo = readPhoto(*source);
    if (!photo) {
        return 0;
    }
    const PixelSize shown = photo->upright().size();
    if (!isAcceptable(shown.width, shown.height)) {
        std::abort();
    }
    if (const auto *picture = std::get_if<Picture>(&photo->picture)) {
        if (const auto *grid = std::get_if<TileGrid>(&picture->content)) {
            const PixelRectangle crop = picture->upright.crop();
            const bool isInside = crop.x >= 0 && crop.y >= 0 && crop.x + crop.width <= grid->canvas.width &&
                                  crop.y + crop.height <= grid->canvas.height;
            const auto tiles = static_cast<std::size_t>(grid->rows) * static_cast<std::size_t>(grid->columns);
            if (!isInside || grid->tiles.size() != tiles) {
                std::abort();
            }
        }
    }
    return 0;
}
