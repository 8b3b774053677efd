#include "ConvertedPhoto.h"
#include "MadePhoto.h"

#include <cstring>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

unsigned addIdentity(HeifFile &file, unsigned input, const HeifFile::Properties &properties)
{
    const unsigned identity = file.add("iden", {}, properties);
    file.refer(identity, "dimg", {input});
    return identity;
}

TEST(DerivedPictures, ShouldBeTurnedOnceMoreAsIdentities)
{
    HeifFile file;
    const unsigned grid = addGrid(file, {150, 100}, {rotation(1)});
    const unsigned identity =
        addIdentity(file, grid, {spatialExtents(100, 150), mirror(1), crop({60, 90}, 10, 20)});
    expectLikeIndependentDecoder(file.bytes(identity));
}

TEST(DerivedPictures, ShouldBePutInTheirPlacesAsTilesOfAGrid)
{
    const CodedItem coded = codedItemOf(makePhoto({.size = TileSize}));
    for (const bool isDerived : {true, false}) { // the other is coded, but shown turned all the same
        HeifFile file;
        const unsigned plain = file.add(coded);
        const unsigned turned = isDerived ? addIdentity(file, plain, {spatialExtents(64, 64), rotation(1)})
                                          : file.add(coded, {rotation(1)});
        const auto tile = shown(file.bytes(plain));
        const auto turnedTile = shown(file.bytes(turned));
        ASSERT_TRUE(tile && turnedTile);
        Raster expected({120, 100});
        lay(*turnedTile, 0, 0, expected);
        lay(*tile, 64, 0, expected);
        lay(*tile, 0, 64, expected);
        lay(*turnedTile, 64, 64, expected);
        const std::vector<unsigned> tiles = {turned, plain, plain, turned};
        expectShown(file.bytes(file.addGrid(2, 2, expected.size, tiles)), expected, 0);
        EXPECT_FALSE(shown(file.bytes(file.addGrid(2, 2, {129, 100}, tiles)))) << "wider than its tiles";
    }
}

TEST(DerivedPictures, ShouldBeJoinedWhereTwoTilesWouldShareAColourSample)
{
    constexpr PixelSize OddTile{61, 63};
    constexpr PixelSize Canvas{3 * OddTile.width, OddTile.height};
    HeifFile file;
    std::vector<unsigned> tiles;
    Raster joined(Canvas);
    for (int index = 0; index < 3; ++index) {
        CodedItem coded =
            codedItemOf(makePhoto({}, partOf(cornerColours({192, 64}, false), 64 * index, 0, TileSize)));
        std::erase_if(coded.properties, [](const auto &property) { return property.type == "ispe"; });
        tiles.push_back(file.add(coded, {spatialExtents(OddTile.width, OddTile.height)}));
        const auto tile = shown(file.bytes(tiles.back()));
        ASSERT_TRUE(tile);
        lay(*tile, index * OddTile.width, 0, joined);
    }
    // A quarter turn, and a crop that begins and ends inside of colour samples.
    const auto cropped = crop({Canvas.width - 2, Canvas.height}, 0, 0);
    Raster expected({Canvas.height, Canvas.width - 2});
    for (int y = 0; y < expected.size.height; ++y) {
        for (int x = 0; x < expected.size.width; ++x) {
            std::memcpy(expected.row(y) + 4L * x, joined.row(x) + 4L * (Canvas.width - 2 - y), 4);
        }
    }
    expectShown(file.bytes(file.addGrid(1, 3, Canvas, tiles, {cropped, rotation(1)})), expected, 0);
}

TEST(DerivedPictures, ShouldBeLaidOverOneAnotherInAnOverlay)
{
    const Bytes below = makePhoto({});
    const Bytes above = makePhoto({.size = {128, 64}, .orientation = 6});
    HeifFile file;
    const std::vector<unsigned> layers = {file.add(codedItemOf(below)), file.add(codedItemOf(above))};
    Raster expected({120, 90});
    const Bytes description =
        joined({Bytes(2), numbers(2, {0xFFFF, 0x8080, 0, 0xFFFF, 120, 90, -10, 20, 60, -5})});
    const unsigned overlay =
        file.add("iovl", description, {spatialExtents(120, 90)}, HeifFile::Place::ItemData);
    file.refer(overlay, "dimg", layers);

    constexpr std::array<std::uint8_t, 4> Orange = {255, 128, 0, 255};
    for (std::size_t index = 0; index < expected.rgba.size(); ++index) {
        expected.rgba[index] = Orange[index % 4];
    }
    const auto first = decodeIndependently(below);
    const auto second = decodeIndependently(above);
    ASSERT_TRUE(first && second);
    lay(*first, -10, 20, expected);
    lay(*second, 60, -5, expected);
    expectShown(file.bytes(overlay), expected);
}

} // namespace

} // namespace imageworker
