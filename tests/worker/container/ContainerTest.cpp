#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadeGrid.h"
#include "MadePhoto.h"
#include "PhotoReader.h"

#include <gtest/gtest.h>

namespace imageworker {

namespace {

using Properties = HeifFile::Properties;
using Place = HeifFile::Place;

TEST(Container, ShouldPutTheTilesOfAGridInTheirPlaces)
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

TEST(Container, ShouldReadDataWhereverItLies)
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

TEST(Container, ShouldTurnAndCropInTheOrderOfTheProperties)
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

TEST(Container, ShouldReadPicturesOfOtherCodecs)
{
    expectLikeIndependentDecoder(makePhoto({.codec = PhotoRecipe::Codec::Av1}));
    expectLikeIndependentDecoder(
        makePhoto({.size = {65, 97}, .hasAlpha = true, .codec = PhotoRecipe::Codec::Av1}));
    const auto jpeg = convert(makePhoto({}), OutputFormat::jpeg);
    ASSERT_TRUE(jpeg);
    HeifFile file;
    const auto asItem = shown(file.bytes(file.add("jpeg", *jpeg, {spatialExtents(96, 64)})));
    const auto asFile = shown(*jpeg);
    ASSERT_TRUE(asItem && asFile);
    constexpr int OtherWayOfEnlargingColour = 8;
    EXPECT_LE(largestDifference(*asItem, *asFile), OtherWayOfEnlargingColour);
}

TEST(Container, ShouldReadAvcWithoutAnyLoss)
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

TEST(Container, ShouldRefuseWhatDoesNotAddUp)
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
