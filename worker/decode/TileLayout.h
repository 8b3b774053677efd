#pragma once

#include "Photo.h"
#include "RowSource.h"

namespace imageworker {

/// A tile of a grid that is at least partly inside the crop.
struct Tile
{
    int index = 0;         ///< in the grid
    PixelRectangle stored; ///< its part inside the crop, in its own pixels
    PixelRectangle shown;  ///< where that part lies in the upright picture
};

/// The tiles of a grid in the order in which they fill the upright picture.
struct TileLayout
{
    TileLayout(const TileGrid &grid, const Transformation &transformation);

    std::vector<Strip> strips;            ///< from top to bottom
    std::vector<std::vector<Tile>> tiles; ///< by strip, from left to right
};

} // namespace imageworker
