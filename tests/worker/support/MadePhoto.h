#pragma once

#include "HeifFile.h"
#include "Raster.h"

#include <optional>

namespace imageworker {

/// What a photo is made of when a test makes one.
struct PhotoRecipe
{
    enum class Chroma { Quarter, Full, None };
    enum class Codec { Hevc, Av1 };

    PixelSize size{96, 64};
    Chroma chroma = Chroma::Quarter;
    int depth = 8; ///< of 8 bits, or of 10 without opacity
    bool hasAlpha = false;
    unsigned orientation = 1; ///< as for Exif; written into the container
    Bytes iccProfile;
    Bytes exif; ///< from the TIFF header on
    Bytes xmp;
    Codec codec = Codec::Hevc;
    int slices = 1; ///< of HEVC, each of 64 rows at least
};

/// A smooth picture with a different colour in each corner, so that turns and mirrors show.
Raster cornerColours(PixelSize size, bool hasAlpha);

/// @p size pixels of @p whole.
Raster partOf(const Raster &whole, int left, int top, PixelSize size);
/// Lays @p picture on @p canvas; what lies outside is left out.
void lay(const Raster &picture, int left, int top, Raster &canvas);

/// The bytes of a HEIC file with cornerColours(), written by libheif.
Bytes makePhoto(const PhotoRecipe &recipe);
/// The same with @p picture, whose size counts.
Bytes makePhoto(const PhotoRecipe &recipe, const Raster &picture);

constexpr PixelSize TileSize{64, 64};

/// Adds a grid of 3 x 2 tiles that shows @p canvas pixels of cornerColours().
unsigned addGrid(HeifFile &file, PixelSize canvas, const HeifFile::Properties &properties = {},
                 HeifFile::Place place = HeifFile::Place::ItemData);

/// How libheif, as an independent decoder, shows a photo; nothing when it cannot.
std::optional<Raster> decodeIndependently(const Bytes &photo);

/// The pixels of a PNG by libpng; nothing when it refuses it.
std::optional<Raster> readPng(const Bytes &file);

} // namespace imageworker
