#pragma once

#include "Source.h"
#include "Transformation.h"

#include <array>
#include <memory>
#include <optional>
#include <variant>

namespace imageworker {

enum class Codec { Hevc, Av1, Avc, Jpeg };

/// Coded bytes that a decoder turns into one picture, with what it must know beforehand.
struct CodedPicture
{
    Codec codec = Codec::Hevc;
    SharedBytes configuration; ///< decoder configuration record; for JPEG the tables that precede the data
    unsigned lengthWidth = 0;  ///< bytes of each NAL unit's length field; 0 where the codec has no such units
    DataLocation data;
};

/// Coding-independent code points (ITU-T H.273); 2 stands for "not said".
struct CodePoints
{
    unsigned primaries = 2;
    unsigned transfer = 2;
    unsigned matrix = 2;
    bool fullRange = false;
};

struct ColourDescription
{
    std::optional<CodePoints> codePoints;
    Bytes iccProfile; ///< empty when there is none
    bool isOpacity =
        false; ///< its samples are opacity, not light: only range and matrix of the code points count
};

/// Tiles of one size in rows. The canvas cuts off what the last ones have too much. A single picture is a
/// grid of one tile.
struct TileGrid
{
    int columns = 1;
    int rows = 1;
    PixelSize tile;
    PixelSize canvas;
    std::vector<CodedPicture> tiles; ///< row by row
};

struct Picture;

/// A canvas with pictures laid on it, later ones over earlier ones (ISO/IEC 23008-12, 6.6.2.2).
struct Overlay
{
    struct Layer
    {
        int x = 0;
        int y = 0;
        std::shared_ptr<const Picture> picture;
    };

    PixelSize canvas;
    std::array<std::uint16_t, 4> fill = {}; ///< red, green, blue, opacity; 65535 is full
    std::vector<Layer> layers;
};

/// How to decode and show what a HEIF file holds as one picture. It holds no pixels: they are in a
/// DecodedPicture or a Raster.
struct Picture
{
    std::variant<TileGrid, Overlay> content;
    Transformation transformation;
    bool hasOrientation =
        false; ///< "irot" or "imir" is part of transformation, so Exif's orientation does not count
    ColourDescription colour;
    std::shared_ptr<Picture> alpha; ///< its opacity as a picture of its own; null when it is opaque
    bool premultiplied = false;     ///< its colours have been multiplied by its opacity
};

/// A whole file that is a JPEG or PNG, whatever its name says.
struct JpegOrPng
{
    enum class Kind { Jpeg, Png };
    Kind kind = Kind::Jpeg;
    PixelSize stored;
    Transformation transformation;
};

/// What a file holds: its picture and its metadata.
struct Photo
{
    std::variant<Picture, JpegOrPng> picture;
    Bytes exif; ///< from its TIFF header on; empty when there is none
    Bytes xmp;  ///< a packet of text; empty when there is none

    const Transformation &transformation() const
    {
        return std::visit(
            [](const auto &content) -> const Transformation & { return content.transformation; }, picture);
    }
};

} // namespace imageworker
