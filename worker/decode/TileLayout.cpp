#include "TileLayout.h"

#include <algorithm>

namespace imageworker {

namespace {

PixelRectangle intersection(PixelRectangle a, PixelRectangle b)
{
    const int left = std::max(a.x, b.x);
    const int top = std::max(a.y, b.y);
    return {left, top, std::min(a.x + a.width, b.x + b.width) - left,
            std::min(a.y + a.height, b.y + b.height) - top};
}

} // namespace

TileLayout::TileLayout(const TileGrid &grid, const Transformation &transformation)
{
    std::vector<Tile> shownTiles;
    for (int index = 0; index < grid.rows * grid.columns; ++index) {
        const PixelRectangle place{index % grid.columns * grid.tile.width,
                                   index / grid.columns * grid.tile.height, grid.tile.width,
                                   grid.tile.height};
        const PixelRectangle part = intersection(place, transformation.crop());
        if (part.width > 0 && part.height > 0) {
            const PixelRectangle stored{part.x - place.x, part.y - place.y, part.width, part.height};
            shownTiles.push_back({index, stored, transformation.shown(part)});
        }
    }
    std::ranges::sort(shownTiles, {}, [](const Tile &tile) { return std::pair(tile.shown.y, tile.shown.x); });
    for (const Tile &tile : shownTiles) {
        if (strips.empty() || strips.back().top != tile.shown.y) {
            strips.push_back({tile.shown.y, tile.shown.height, 0});
            tiles.emplace_back();
        }
        ++strips.back().tileCount;
        tiles.back().push_back(tile);
    }
}

} // namespace imageworker
