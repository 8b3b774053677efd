#include "ConvertedPhoto.h"
#include "MadeGrid.h"
#include "MadePhoto.h"

#include <cstring>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

using Properties = HeifFile::Properties;
using Place = HeifFile::Place;

TEST(DerivedPictures, ShouldBeTurnedOnceMoreAsIdentities)
{
    HeifFile file;
    const unsigned grid = addGrid(file, {150, 100}, {rotation(1)});
    const unsigned identity =
        file.add("iden", {}, {spatialExtents(100, 150), mirror(1), crop({60, 90}, 10, 20)});
    file.refer(identity, "dimg", {grid});
    expectLikeIndependentDecoder(file.bytes(identity));
}

TEST(DerivedPictures, ShouldBePutInTheirPlacesAsTilesOfAGrid)
{
    const CodedItem coded = codedItemOf(makePhoto({.size = TileSize}));
    for (const bool isDerived : {true, false}) { // the other is coded, but shown turned all the same
        HeifFile file;
        const unsigned plain = file.add("hvc1", coded.data, coded.properties);
        unsigned turned = 0;
        if (isDerived) {
            turned = file.add("iden", {}, {spatialExtents(64, 64), rotation(1)});
            file.refer(turned, "dimg", {plain});
        } else {
            turned = file.add("hvc1", coded.data, with(coded.properties, {rotation(1)}));
        }
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
        const unsigned tooWide = file.add("grid", gridOf(2, 2, {129, 100}), {spatialExtents(129, 100)});
        file.refer(tooWide, "dimg", {turned, plain, plain, turned});
        EXPECT_FALSE(shown(file.bytes(tooWide)));
    }
}

TEST(DerivedPictures, ShouldBeJoinedWhereTwoTilesWouldShareAColourSample)
{
    constexpr PixelSize OddTile{61, 63};
    const Properties cut = {spatialExtents(OddTile.width, OddTile.height)};
    HeifFile file;
    std::vector<unsigned> tiles;
    Raster joined({3 * OddTile.width, OddTile.height});
    for (int index = 0; index < 3; ++index) {
        CodedItem coded = codedItemOf(
            makePhoto({.size = TileSize}, partOf(cornerColours({192, 64}, false), 64 * index, 0, TileSize)));
        std::erase_if(coded.properties,
                      [](const HeifFile::Property &property) { return property.type == "ispe"; });
        tiles.push_back(file.add("hvc1", coded.data, with(coded.properties, cut)));
        const auto tile = shown(file.bytes(tiles.back()));
        ASSERT_TRUE(tile);
        lay(*tile, index * OddTile.width, 0, joined);
    }
    // A quarter turn, and a crop that begins and ends inside of colour samples.
    const PixelSize canvas = joined.size;
    const unsigned grid =
        file.add("grid", gridOf(1, 3, canvas),
                 {spatialExtents(static_cast<unsigned>(canvas.width), static_cast<unsigned>(canvas.height)),
                  crop({canvas.width - 2, canvas.height}, 0, 0), rotation(1)},
                 Place::ItemData);
    file.refer(grid, "dimg", tiles);
    const auto copy = shown(file.bytes(grid));
    ASSERT_TRUE(copy);
    ASSERT_EQ(copy->size, (PixelSize{canvas.height, canvas.width - 2}));
    for (int y = 0; y < copy->size.height; ++y) {
        for (int x = 0; x < copy->size.width; ++x) {
            const std::uint8_t *original = joined.row(x) + std::ptrdiff_t{4} * (canvas.width - 2 - y);
            ASSERT_EQ(std::memcmp(copy->row(y) + std::ptrdiff_t{4} * x, original, 4), 0) << x << ", " << y;
        }
    }
}

TEST(DerivedPictures, ShouldBeLaidOverOneAnotherInAnOverlay)
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

} // namespace

} // namespace imageworker
