#include "OverlayComposer.h"

#include <algorithm>

namespace imageworker {

namespace {

/// "Over" of Porter and Duff for colours that have not been multiplied by their opacity.
void layOver(const std::uint8_t *upper, std::uint8_t *lower)
{
    const unsigned upperOpacity = upper[3];
    if (upperOpacity == 255) {
        std::copy_n(upper, 4, lower);
        return;
    }
    const unsigned lowerOpacity = lower[3] * (255 - upperOpacity) / 255;
    const unsigned opacity = upperOpacity + lowerOpacity;
    if (opacity == 0) {
        return;
    }
    for (int channel = 0; channel < 3; ++channel) {
        const unsigned mixed = upper[channel] * upperOpacity + lower[channel] * lowerOpacity;
        lower[channel] = static_cast<std::uint8_t>((mixed + opacity / 2) / opacity);
    }
    lower[3] = static_cast<std::uint8_t>(opacity);
}

void layOver(const Raster &layer, std::int64_t left, std::int64_t top, Raster &canvas)
{
    const std::int64_t right = std::min<std::int64_t>(left + layer.size.width, canvas.size.width);
    const std::int64_t bottom = std::min<std::int64_t>(top + layer.size.height, canvas.size.height);
    for (std::int64_t y = std::max<std::int64_t>(top, 0); y < bottom; ++y) {
        const std::uint8_t *upper = layer.row(static_cast<int>(y - top));
        std::uint8_t *lower = canvas.row(static_cast<int>(y));
        for (std::int64_t x = std::max<std::int64_t>(left, 0); x < right; ++x) {
            layOver(upper + 4 * (x - left), lower + 4 * x);
        }
    }
}

} // namespace

Result<Raster> composeOverlay(const Overlay &overlay,
                              const std::function<Result<Raster>(const Picture &)> &decode)
{
    Raster canvas(overlay.canvas);
    for (std::size_t index = 0; index < canvas.rgba.size(); ++index) {
        canvas.rgba[index] = static_cast<std::uint8_t>(overlay.fill[index % 4] >> 8);
    }
    for (const Overlay::Layer &layer : overlay.layers) {
        const auto raster = decode(*layer.picture);
        if (!raster) {
            return unreadable();
        }
        layOver(*raster, layer.x, layer.y, canvas);
    }
    return canvas;
}

} // namespace imageworker
