#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "HeifFile.h"
#include "MadePhoto.h"
#include "PhotoReader.h"
#include "TileDecoder.h"

#include <cstring>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

using Properties = HeifFile::Properties;
using Place = HeifFile::Place;

constexpr int Rounding = 2; // the independent decoder rounds to integers in between
constexpr PixelSize TileSize{64, 64};

Raster partOf(const Raster &whole, int left, int top, PixelSize size)
{
    Raster part(size);
    for (int y = 0; y < size.height; ++y) {
        std::memcpy(part.row(y), whole.row(top + y) + std::ptrdiff_t{4} * left, part.rowLength());
    }
    return part;
}

/// What lies outside is left out.
void lay(const Raster &picture, int left, int top, Raster &canvas)
{
    for (int y = 0; y < picture.size.height; ++y) {
        for (int x = 0; x < picture.size.width; ++x) {
            const int toX = left + x;
            const int toY = top + y;
            if (toX >= 0 && toX < canvas.size.width && toY >= 0 && toY < canvas.size.height) {
                std::memcpy(canvas.row(toY) + std::ptrdiff_t{4} * toX, picture.row(y) + std::ptrdiff_t{4} * x,
                            4);
            }
        }
    }
}

Properties with(Properties properties, const Properties &more)
{
    properties.insert(properties.end(), more.begin(), more.end());
    return properties;
}

HeifFile::Property rotation(std::uint8_t quarters)
{
    return {"irot", {quarters}};
}

HeifFile::Property mirror(std::uint8_t axis)
{
    return {"imir", {axis}};
}

/// A clean aperture of @p size, its centre off the picture's by halves of a pixel.
HeifFile::Property crop(PixelSize size, int halvesRight, int halvesDown)
{
    const auto number = [](int value) { return bigEndian(static_cast<std::uint32_t>(value), 4); };
    return {"clap", joined({number(size.width), number(1), number(size.height), number(1),
                            number(halvesRight), number(2), number(halvesDown), number(2)})};
}

Bytes gridOf(unsigned rows, unsigned columns, PixelSize canvas)
{
    return joined({Bytes(2), bigEndian(rows - 1, 1), bigEndian(columns - 1, 1),
                   bigEndian(static_cast<unsigned>(canvas.width), 2),
                   bigEndian(static_cast<unsigned>(canvas.height), 2)});
}

class Container : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(loadDecoders()); }

    static void expectLikeIndependentDecoder(const Bytes &photo)
    {
        const auto copy = shown(photo);
        const auto reference = decodeIndependently(photo);
        ASSERT_TRUE(copy);
        ASSERT_TRUE(reference);
        EXPECT_LE(largestDifference(*copy, *reference), Rounding);
    }

    /// Adds a grid of 3 x 2 tiles that shows @p canvas pixels of cornerColours().
    static unsigned addGrid(HeifFile &file, PixelSize canvas, const Properties &properties = {},
                            Place place = Place::ItemData)
    {
        constexpr int Columns = 3;
        constexpr int Rows = 2;
        const Raster whole = cornerColours({Columns * TileSize.width, Rows * TileSize.height}, false);
        std::vector<unsigned> tiles;
        for (int row = 0; row < Rows; ++row) {
            for (int column = 0; column < Columns; ++column) {
                const Raster part = partOf(whole, column * TileSize.width, row * TileSize.height, TileSize);
                const CodedItem tile = codedItemOf(makePhoto({}, part));
                tiles.push_back(file.add("hvc1", tile.data, tile.properties));
            }
        }
        const auto extents =
            spatialExtents(static_cast<unsigned>(canvas.width), static_cast<unsigned>(canvas.height));
        const unsigned grid =
            file.add("grid", gridOf(Rows, Columns, canvas), with({extents}, properties), place);
        file.refer(grid, "dimg", tiles);
        return grid;
    }
};

TEST_F(Container, ShouldPutTheTilesOfAGridInTheirPlaces)
{
    for (const PixelSize canvas : {PixelSize{192, 128}, PixelSize{150, 100}, PixelSize{131, 67}}) {
        SCOPED_TRACE(testing::Message() << canvas.width << " x " << canvas.height);
        HeifFile file;
        const unsigned grid = addGrid(file, canvas);
        const Bytes photo = file.bytes(grid);
        expectLikeIndependentDecoder(photo);
        const auto copy = shown(photo);
        ASSERT_TRUE(copy);
        const Raster drawn = partOf(cornerColours({192, 128}, false), 0, 0, canvas);
        constexpr int LossOfCoding = 12;
        EXPECT_LE(largestDifference(*copy, drawn), LossOfCoding);
    }
}

TEST_F(Container, ShouldReadDataWhereverItLies)
{
    const Bytes simple = makePhoto({});
    const auto reference = decodeIndependently(simple);
    ASSERT_TRUE(reference);
    for (const Place place : {Place::File, Place::ItemData, Place::Item}) {
        SCOPED_TRACE(static_cast<int>(place));
        HeifFile single;
        const CodedItem coded = codedItemOf(simple);
        const auto copy = shown(single.bytes(single.add("hvc1", coded.data, coded.properties, place)));
        ASSERT_TRUE(copy);
        EXPECT_LE(largestDifference(*copy, *reference), Rounding);
        HeifFile tiled;
        const unsigned grid = addGrid(tiled, {150, 100}, {}, place);
        EXPECT_TRUE(shown(tiled.bytes(grid)));
    }
}

TEST_F(Container, ShouldTurnAndCropInTheOrderOfTheProperties)
{
    const std::vector<Properties> orders = {
        {rotation(1), mirror(0)},
        {mirror(0), rotation(1)},
        {rotation(3), mirror(1)},
        {mirror(1), rotation(3)},
        // Whole places: on halves decoders differ.
        {crop({50, 30}, -12, 6), rotation(1)},
        {rotation(1), crop({30, 50}, 6, -12)},
        {crop({70, 40}, 0, 0), rotation(2), mirror(1), crop({30, 16}, 4, -8)},
    };
    const CodedItem coded = codedItemOf(makePhoto({.size = {128, 64}}));
    for (std::size_t order = 0; order < orders.size(); ++order) {
        SCOPED_TRACE(order);
        HeifFile single;
        expectLikeIndependentDecoder(
            single.bytes(single.add("hvc1", coded.data, with(coded.properties, orders[order]))));
        HeifFile tiled;
        const unsigned grid = addGrid(tiled, {150, 100}, orders[order]);
        expectLikeIndependentDecoder(tiled.bytes(grid));
    }
}

TEST_F(Container, ShouldTurnAnIdentityOfATurnedPicture)
{
    HeifFile file;
    const unsigned grid = addGrid(file, {150, 100}, {rotation(1)});
    const unsigned identity =
        file.add("iden", {}, {spatialExtents(100, 150), mirror(1), crop({60, 90}, 10, 20)});
    file.refer(identity, "dimg", {grid});
    expectLikeIndependentDecoder(file.bytes(identity));
}

TEST_F(Container, ShouldPutDerivedTilesOfAGridInTheirPlaces)
{
    HeifFile file;
    const CodedItem coded = codedItemOf(makePhoto({.size = TileSize}));
    const unsigned plain = file.add("hvc1", coded.data, coded.properties);
    const auto extents = spatialExtents(64, 64);
    const unsigned turned = file.add("iden", {}, {extents, rotation(1)});
    file.refer(turned, "dimg", {plain});
    const unsigned grid =
        file.add("grid", gridOf(2, 2, {120, 100}), {spatialExtents(120, 100)}, Place::ItemData);
    file.refer(grid, "dimg", {turned, plain, plain, turned});
    const auto copy = shown(file.bytes(grid));
    const auto tile = shown(file.bytes(plain));
    const auto turnedTile = shown(file.bytes(turned));
    ASSERT_TRUE(copy && tile && turnedTile);
    Raster expected({120, 100});
    lay(*turnedTile, 0, 0, expected);
    lay(*tile, 64, 0, expected);
    lay(*tile, 0, 64, expected);
    lay(*turnedTile, 64, 64, expected);
    EXPECT_EQ(largestDifference(*copy, expected), 0);
    HeifFile sparse = file;
    const unsigned tooWide = sparse.add("grid", gridOf(2, 2, {129, 100}), {spatialExtents(129, 100)});
    sparse.refer(tooWide, "dimg", {turned, plain, plain, turned});
    EXPECT_FALSE(shown(sparse.bytes(tooWide)));
}

TEST_F(Container, ShouldLayTheLayersOfAnOverlayOverOneAnother)
{
    const std::vector<Bytes> layers = {makePhoto({}), makePhoto({.size = {128, 64}, .orientation = 6})};
    HeifFile file;
    std::vector<unsigned> items;
    for (const Bytes &layer : layers) {
        const CodedItem coded = codedItemOf(layer);
        items.push_back(file.add("hvc1", coded.data, coded.properties));
    }
    constexpr PixelSize CanvasSize{120, 90};
    const auto number = [](int value) { return bigEndian(static_cast<std::uint16_t>(value), 2); };
    const Bytes description =
        joined({Bytes(2), number(0xFFFF), number(0x8080), number(0), number(0xFFFF), number(CanvasSize.width),
                number(CanvasSize.height), number(-10), number(20), number(60), number(-5)});
    const unsigned overlay = file.add("iovl", description, {spatialExtents(120, 90)}, Place::ItemData);
    file.refer(overlay, "dimg", items);

    const auto copy = shown(file.bytes(overlay));
    const auto below = decodeIndependently(layers[0]);
    const auto above = decodeIndependently(layers[1]);
    ASSERT_TRUE(copy && below && above);
    Raster expected(CanvasSize);
    for (std::size_t pixel = 0; pixel < expected.rgba.size(); pixel += 4) {
        constexpr std::array<std::uint8_t, 4> Orange = {255, 128, 0, 255};
        std::ranges::copy(Orange, expected.rgba.begin() + static_cast<std::ptrdiff_t>(pixel));
    }
    lay(*below, -10, 20, expected);
    lay(*above, 60, -5, expected);
    EXPECT_LE(largestDifference(*copy, expected), Rounding);
}

TEST_F(Container, ShouldReadPicturesOfOtherCodecs)
{
    expectLikeIndependentDecoder(makePhoto({.codec = PhotoRecipe::Codec::Av1}));
    expectLikeIndependentDecoder(
        makePhoto({.size = {65, 97}, .hasAlpha = true, .codec = PhotoRecipe::Codec::Av1}));
    const auto jpeg = convert(makePhoto({}), CopyFormat::Jpeg);
    ASSERT_TRUE(jpeg);
    HeifFile file;
    const auto asItem = shown(file.bytes(file.add("jpeg", *jpeg, {spatialExtents(96, 64)})));
    const auto asFile = shown(*jpeg);
    ASSERT_TRUE(asItem && asFile);
    constexpr int OtherWayOfEnlargingColour = 8;
    EXPECT_LE(largestDifference(*asItem, *asFile), OtherWayOfEnlargingColour);
}

TEST_F(Container, ShouldReadAvcWithoutAnyLoss)
{
    for (const PixelSize size : {PixelSize{96, 64}, PixelSize{70, 42}}) { // blocks have 16 pixels a side
        const Raster drawn = cornerColours(size, false);
        const CodedItem coded = makeAvcItem(drawn);
        HeifFile file;
        const auto copy = shown(file.bytes(file.add("avc1", coded.data, coded.properties)));
        ASSERT_TRUE(copy);
        Raster grey(size);
        for (std::size_t index = 0; index < grey.rgba.size(); ++index) {
            grey.rgba[index] = index % 4 == 3 ? 255 : drawn.rgba[index - index % 4];
        }
        EXPECT_EQ(largestDifference(*copy, grey), 0);
    }
}

TEST_F(Container, ShouldRefuseWhatDoesNotAddUp)
{
    const CodedItem coded = codedItemOf(makePhoto({}));
    const auto refuses = [](const HeifFile &file, unsigned primary) {
        return !shown(file.bytes(primary)).has_value();
    };
    {
        HeifFile file;
        EXPECT_TRUE(refuses(file, addGrid(file, {193, 128}))) << "tiles that do not cover the canvas";
    }
    {
        HeifFile file;
        const unsigned tile = file.add("hvc1", coded.data, coded.properties);
        const unsigned grid = file.add("grid", gridOf(1, 2, {192, 64}), {spatialExtents(192, 64)});
        file.refer(grid, "dimg", {tile});
        EXPECT_TRUE(refuses(file, grid)) << "a missing tile";
        file.refer(grid, "dimg", {tile, 77});
        EXPECT_TRUE(refuses(file, grid)) << "a tile that is no item";
    }
    for (const char *type : {"iden", "iovl"}) {
        HeifFile file;
        const unsigned item = file.add(type, Bytes(40, 1), {spatialExtents(64, 64)});
        file.refer(item, "dimg", {item});
        EXPECT_TRUE(refuses(file, item)) << type << " of itself";
    }
    {
        HeifFile file;
        const unsigned item = file.add("hvc1", coded.data, coded.properties);
        EXPECT_TRUE(refuses(file, item + 1)) << "a primary item that is not there";
        Bytes cut = file.bytes(item);
        ASSERT_TRUE(shown(cut));
        cut.pop_back();
        EXPECT_FALSE(shown(cut)) << "data past the end";
    }
}

} // namespace

} // namespace imageworker
