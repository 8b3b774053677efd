#pragma once

#include "HeifFile.h"

namespace imageworker {

constexpr PixelSize TileSize{64, 64};

/// Turns by @p quarters, anticlockwise.
HeifFile::Property rotation(std::uint8_t quarters);
/// Exchanges top and bottom (0) or left and right (1).
HeifFile::Property mirror(std::uint8_t axis);
/// A clean aperture of @p size, its centre off the picture's by halves of a pixel.
HeifFile::Property crop(PixelSize size, int halvesRight, int halvesDown);

HeifFile::Properties with(HeifFile::Properties properties, const HeifFile::Properties &more);

/// The data of a grid's item.
Bytes gridOf(unsigned rows, unsigned columns, PixelSize canvas);

/// Adds a grid of 3 x 2 tiles that shows @p canvas pixels of cornerColours().
unsigned addGrid(HeifFile &file, PixelSize canvas, const HeifFile::Properties &properties = {},
                 HeifFile::Place place = HeifFile::Place::ItemData);

} // namespace imageworker
