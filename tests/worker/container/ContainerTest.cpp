#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadePhoto.h"

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
        // Whole places: on halves decoders differ.
        {crop({50, 30}, -12, 6), rotation(1)},
        {rotation(1), crop({30, 50}, 6, -12)},
        {crop({70, 40}, 0, 0), rotation(2), mirror(1), crop({30, 16}, 4, -8)},
    };
    const CodedItem coded = codedItemOf(makePhoto({.size = {128, 64}}));
    for (std::size_t order = 0; order < orders.size(); ++order) {
        SCOPED_TRACE(order);
        expectLikeIndependentDecoder(photoOf(coded, orders[order]));
        expectLikeIndependentDecoder(gridPhoto({150, 100}, orders[order]));
    }
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

TEST(Container, ShouldReadAvcWithoutAnyLoss)
{
    for (const PixelSize size : {PixelSize{96, 64}, PixelSize{70, 42}}) { // blocks have 16 pixels a side
        const Raster drawn = cornerColours(size, false);
        Raster grey(size);
        for (std::size_t index = 0; index < grey.rgba.size(); ++index) {
            grey.rgba[index] = index % 4 == 3 ? 255 : drawn.rgba[index - index % 4];
        }
        expectShown(photoOf(makeAvcItem(drawn)), grey, 0);
    }
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
