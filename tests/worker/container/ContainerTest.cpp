#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadePhoto.h"
#include "PhotoReader.h"

#include <gtest/gtest.h>

namespace imageworker {

namespace {

using Properties = HeifFile::Properties;
using Place = HeifFile::Place;

Bytes gridPhoto(PixelSize canvas, const Properties &properties = {}, Place place = Place::ItemData)
{
    HeifFile file;
    return file.bytes(addGrid(file, canvas, properties, place));
}

TEST(Container, ShouldPutTheTilesOfAGridInTheirPlaces)
{
    for (const PixelSize canvas : {PixelSize{192, 128}, PixelSize{150, 100}, PixelSize{131, 67}}) {
        SCOPED_TRACE(testing::Message() << canvas.width << " x " << canvas.height);
        const Bytes photo = gridPhoto(canvas);
        expectLikeIndependentDecoder(photo);
        constexpr int LossOfCoding = 12;
        expectShown(photo, partOf(cornerColours({192, 128}, false), 0, 0, canvas), LossOfCoding);
    }
}

TEST(Container, ShouldReadDataWhereverItLies)
{
    const Bytes simple = makePhoto({});
    for (const Place place : {Place::File, Place::ItemData, Place::Item}) {
        SCOPED_TRACE(static_cast<int>(place));
        HeifFile single;
        expectShown(single.bytes(single.add(codedItemOf(simple), {}, place)), decodeIndependently(simple));
        EXPECT_TRUE(shown(gridPhoto({150, 100}, {}, place)));
    }
}

TEST(Container, ShouldTurnAndCropInTheOrderOfTheProperties)
{
    const std::vector<Properties> orders = {
        {rotation(1), mirror(0)},
        {mirror(0), rotation(1)},
        {rotation(3), mirror(1)},
        {mirror(1), rotation(3)},
        // Even places: on odd ones libheif 1.23 shifts the colours, on halves decoders differ.
        {crop({50, 30}, -10, 6), rotation(1)},
        {rotation(1), crop({30, 50}, 6, -10)},
        {crop({72, 40}, 0, 0), rotation(2), mirror(1), crop({30, 16}, 6, -8)},
    };
    const CodedItem coded = codedItemOf(makePhoto({.size = {128, 64}}));
    for (std::size_t order = 0; order < orders.size(); ++order) {
        SCOPED_TRACE(order);
        expectLikeIndependentDecoder(photoOf(coded, orders[order]));
        expectLikeIndependentDecoder(gridPhoto({150, 100}, orders[order]));
    }
    const auto whole = shown(photoOf(coded));
    ASSERT_TRUE(whole);
    expectShown(photoOf(coded, {crop({50, 30}, -12, 6)}), partOf(*whole, 33, 20, {50, 30}), 0);
}

TEST(Container, ShouldReadPicturesOfOtherCodecs)
{
    constexpr auto Av1 = PhotoRecipe::Codec::Av1;
    expectLikeIndependentDecoder(makePhoto({.codec = Av1}));
    expectLikeIndependentDecoder(makePhoto({.size = {65, 97}, .hasAlpha = true, .codec = Av1}));
    const auto jpeg = convert(makePhoto({}), OutputFormat::jpeg);
    ASSERT_TRUE(jpeg);
    constexpr int OtherWayOfEnlargingColour = 8;
    expectShown(photoOf({"jpeg", {spatialExtents(96, 64)}, *jpeg}), shown(*jpeg), OtherWayOfEnlargingColour);
}

TEST(Container, ShouldRefuseItemsWithAnEssentialPropertyThatIsNotKnown)
{
    const CodedItem coded = codedItemOf(makePhoto({.size = TileSize}));
    const auto isShown = [&coded](const HeifFile::Property &property) {
        HeifFile file;
        const std::vector<unsigned> tiles = {file.add(coded), file.add(coded, {property})};
        const Bytes ofTiles = file.bytes(file.addGrid(1, 2, {128, 64}, tiles));
        return std::array{shown(photoOf(coded, {property})).has_value(), shown(ofTiles).has_value(),
                          shown(gridPhoto({150, 100}, {property})).has_value()};
    };
    for (const auto &property : Properties{{"pixi", Bytes(8), true}, {"lsel", {0, 0}, true}, {"wxyz", {}}}) {
        EXPECT_EQ(isShown(property), (std::array{true, true, true})) << property.type;
    }
    for (const auto &property : Properties{{"wxyz", {}, true}, {"lsel", {0, 1}, true}}) {
        EXPECT_EQ(isShown(property), (std::array{false, false, false})) << property.type;
    }
}

TEST(Container, ShouldBoundWhatASmallFileAsksFor)
{
    constexpr unsigned Side = 64;
    HeifFile file;
    const unsigned tile = file.add(makeAvcItem(cornerColours(TileSize, false)));
    const auto photoOfRepeated = [&](unsigned side) {
        const PixelSize canvas{TileSize.width * int(side), TileSize.height * int(side)};
        return file.bytes(file.addGrid(side, side, canvas, std::vector(std::size_t{side} * side, tile)));
    };
    EXPECT_FALSE(readPhoto(*sourceOfBytes(photoOfRepeated(Side))));
    const auto photo = readPhoto(*sourceOfBytes(photoOfRepeated(4)));
    ASSERT_TRUE(photo);
    const auto &tiles = std::get<TileGrid>(std::get<Picture>(photo->picture).content).tiles;
    EXPECT_EQ(tiles.front().configuration, tiles.back().configuration) << "it is held once";
}

TEST(Container, ShouldRefuseWhatDoesNotAddUp)
{
    const CodedItem coded = codedItemOf(makePhoto({}));
    EXPECT_FALSE(shown(gridPhoto({193, 128}))) << "tiles that do not cover the canvas";
    for (const std::vector<unsigned> &tiles : {std::vector{1U}, {1U, 77U}, {1U, 1U}}) {
        HeifFile file;
        file.add(coded);
        const bool areThere = tiles.back() == 1 && tiles.size() == 2;
        EXPECT_EQ(shown(file.bytes(file.addGrid(1, 2, {192, 64}, tiles))).has_value(), areThere);
    }
    for (const char *type : {"iden", "iovl"}) {
        HeifFile file;
        const unsigned item = file.add(type, Bytes(40, 1), {spatialExtents(64, 64)});
        file.refer(item, "dimg", {item});
        EXPECT_FALSE(shown(file.bytes(item))) << type << " of itself";
    }
    HeifFile file;
    const unsigned item = file.add(coded);
    EXPECT_FALSE(shown(file.bytes(item + 1))) << "a primary item that is not there";
    Bytes cut = file.bytes(item);
    ASSERT_TRUE(shown(cut));
    cut.pop_back();
    EXPECT_FALSE(shown(cut)) << "data past the end";
}

} // namespace

} // namespace imageworker
