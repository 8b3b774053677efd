#include "PictureProperties.h"

#include "Boxes.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace imageworker {

namespace {

/// Whether @p property of an item of type @p itemType is read here, or is not needed to show a still picture.
bool isUnderstood(std::uint32_t itemType, const ItemProperty &property)
{
    switch (property.type) {
    case fourCharacters("ispe"):
    case fourCharacters("colr"):
    case fourCharacters("irot"):
    case fourCharacters("imir"):
    case fourCharacters("clap"):
    case fourCharacters("auxC"):
    case fourCharacters("hvcC"):
    case fourCharacters("av1C"):
    case fourCharacters("avcC"):
    case fourCharacters("jpgC"):
    // These tell what the coded data tell again, or what is not needed to show the picture (ISO/IEC 23008-12,
    // 6.5; ISO/IEC 14496-12, 12.1.4 to 12.1.7; AV1 image file format, 2.3.2.3).
    case fourCharacters("a1lx"): // where the layers begin
    case fourCharacters("altt"): // a description for the blind
    case fourCharacters("amve"): // the light around the viewer
    case fourCharacters("cclv"): // light levels, as the next two and "ndwt"
    case fourCharacters("clli"):
    case fourCharacters("mdcv"):
    case fourCharacters("ndwt"):
    case fourCharacters("cmex"): // position and lens of the camera, as the next
    case fourCharacters("cmin"):
    case fourCharacters("crtt"): // times
    case fourCharacters("mdft"):
    case fourCharacters("lhvC"): // layers above the first
    case fourCharacters("oinf"):
    case fourCharacters("pasp"): // shape of the pixels
    case fourCharacters("pixi"): // bits of each channel
    case fourCharacters("rloc"): // position in another picture
    case fourCharacters("subs"): // parts of the coded data
    case fourCharacters("udes"): // the user's description
        return true;
    // Which of several pictures in the coded data. Of AV1 the decoder shows the first operating point with
    // all layers, of HEVC the first layer.
    case fourCharacters("a1op"):
        return *property.payload == Bytes{0};
    case fourCharacters("lsel"):
        return *property.payload == (itemType == fourCharacters("av01") ? Bytes{0xFF, 0xFF} : Bytes{0, 0});
    default:
        return false;
    }
}

} // namespace

Picture pictureOf(CodedPicture coded, PixelSize size)
{
    TileGrid grid;
    grid.tile = size;
    grid.canvas = size;
    grid.tiles.push_back(std::move(coded));
    Picture picture;
    picture.transformation = Transformation(size);
    picture.content = std::move(grid);
    return picture;
}

Result<PixelSize> spatialExtent(const ItemTable &table, const Item &item)
{
    const ItemProperty *property = table.property(item, fourCharacters("ispe"));
    if (property == nullptr) {
        return unreadable();
    }
    ByteReader reader(*property->payload);
    readFullBoxHeader(reader);
    const std::uint32_t width = reader.u32();
    const std::uint32_t height = reader.u32();
    if (reader.failed() || !isAcceptable(width, height)) {
        return unreadable();
    }
    return PixelSize{static_cast<int>(width), static_cast<int>(height)};
}

void readColour(std::span<const std::uint8_t> payload, ColourDescription &colour)
{
    ByteReader reader(payload);
    switch (reader.u32()) {
    case fourCharacters("nclx"): {
        CodePoints points;
        points.primaries = reader.u16();
        points.transfer = reader.u16();
        points.matrix = reader.u16();
        points.fullRange = (reader.u8() & 0x80) != 0;
        if (!reader.failed()) {
            colour.codePoints = points;
        }
        break;
    }
    case fourCharacters("prof"):
    case fourCharacters("rICC"):
        colour.iccProfile.assign(reader.rest().begin(), reader.rest().end());
        break;
    default:
        break;
    }
}

ColourDescription colourOf(const ItemTable &table, const Item &item)
{
    ColourDescription colour;
    for (const auto &[index, isEssential] : item.properties) {
        if (index < table.properties.size() && table.properties[index].type == fourCharacters("colr")) {
            readColour(*table.properties[index].payload, colour);
        }
    }
    return colour;
}

Result<void> applyCleanAperture(ByteReader reader, Transformation &transformation)
{
    const auto fraction = [&reader] {
        const auto numerator = static_cast<std::int32_t>(reader.u32());
        const auto denominator = static_cast<std::int32_t>(reader.u32());
        return denominator == 0 ? std::nan("") : double{1} * numerator / denominator;
    };
    const double width = fraction();
    const double height = fraction();
    const double horizontal = fraction();
    const double vertical = fraction();
    const PixelSize size = transformation.size();
    const double left = horizontal + (size.width - width) / 2;
    const double top = vertical + (size.height - height) / 2;
    constexpr double Farthest = 1e6; // within the range of the integers below
    const auto isSane = [](double value) { return std::abs(value) < Farthest; }; // false for a NaN, too
    if (reader.failed() || !isSane(width) || !isSane(height) || !isSane(left) || !isSane(top) || width < 1 ||
        height < 1 ||
        !transformation.cropTo(std::lround(left), std::lround(top), std::lround(width),
                               std::lround(height))) {
        return unreadable();
    }
    return {};
}

Result<void> applyTransformations(const ItemTable &table, const Item &item, Picture &picture)
{
    for (const auto &[index, isEssential] : item.properties) {
        if (index >= table.properties.size()) {
            continue;
        }
        ByteReader reader(*table.properties[index].payload);
        switch (table.properties[index].type) {
        case fourCharacters("irot"):
            picture.transformation.rotateAnticlockwise(reader.u8() & 3);
            picture.hasOrientation = true;
            break;
        case fourCharacters("imir"):
            if ((reader.u8() & 1) == 0) {
                picture.transformation.flipVertically();
            } else {
                picture.transformation.flipHorizontally();
            }
            picture.hasOrientation = true;
            break;
        case fourCharacters("clap"):
            if (!applyCleanAperture(reader, picture.transformation)) {
                return unreadable();
            }
            break;
        default:
            break;
        }
    }
    return {};
}

bool isUnderstood(const ItemTable &table, const Item &item)
{
    return std::ranges::all_of(item.properties, [&](const PropertyAssociation &association) {
        const auto index = association.index;
        return !association.isEssential ||
               (index < table.properties.size() && isUnderstood(item.type, table.properties[index]));
    });
}

bool isTransformed(const ItemTable &table, const Item &item)
{
    return table.property(item, fourCharacters("irot")) != nullptr ||
           table.property(item, fourCharacters("imir")) != nullptr ||
           table.property(item, fourCharacters("clap")) != nullptr;
}

bool isAlpha(const ItemTable &table, const Item &item)
{
    constexpr std::string_view Names[] = {
        "urn:mpeg:mpegB:cicp:systems:auxiliary:alpha", // ISO/IEC 23008-12, 6.5.8
        "urn:mpeg:hevc:2015:auxid:1",                  // its annex B.2.3 for HEVC
        "urn:mpeg:avc:2015:auxid:1",
    };
    const ItemProperty *property = table.property(item, fourCharacters("auxC"));
    if (property == nullptr) {
        return false;
    }
    ByteReader reader(*property->payload);
    readFullBoxHeader(reader);
    const auto text = reader.text();
    return std::ranges::any_of(Names, [&text](std::string_view name) {
        return std::ranges::equal(name, text, [](char character, std::uint8_t byte) {
            return static_cast<std::uint8_t>(character) == byte;
        });
    });
}

} // namespace imageworker
