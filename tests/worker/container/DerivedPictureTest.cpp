#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadePhoto.h"

#include <algorithm>
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

/// What a grid shows of two tiles, one of them twice over, cropped by a column at each side and turned.
Raster expectedGrid(const Raster &first, const Raster &second)
{
    const auto [width, height] = first.size;
    Raster joined({2 * width, 2 * height});
    lay(first, 0, 0, joined);
    lay(second, width, 0, joined);
    lay(second, 0, height, joined);
    lay(first, width, height, joined);
    Raster turned({joined.size.height, joined.size.width - 2});
    for (int y = 0; y < turned.size.height; ++y) {
        for (int x = 0; x < turned.size.width; ++x) {
            std::memcpy(turned.row(y) + 4L * x, joined.row(x) + 4L * (joined.size.width - 2 - y), 4);
        }
    }
    return turned;
}

TEST(DerivedPictures, ShouldBePutInTheirPlacesAsTilesOfAGrid)
{
    const CodedItem coded = codedItemOf(makePhoto({.size = TileSize}));
    CodedItem odd = coded; // two tiles would share a colour sample
    std::erase_if(odd.properties, [](const auto &property) { return property.type == "ispe"; });
    odd.properties.push_back(spatialExtents(61, 63));
    for (const char *kind : {"derived", "turned", "with opacity", "odd"}) {
        SCOPED_TRACE(kind);
        HeifFile file;
        const unsigned plain = file.add(kind[0] == 'o' ? odd : coded);
        const unsigned other = kind[0] == 'd'
                                   ? addIdentity(file, plain, {spatialExtents(64, 64), rotation(1)})
                               : kind[0] == 't' ? file.add(coded, {rotation(1)})
                                                : file.add(kind[0] == 'o' ? odd : coded);
        if (kind[0] == 'w') {
            Raster opacity(TileSize);
            std::ranges::fill(opacity.rgba, std::uint8_t{77});
            file.refer(file.add(makeAvcItem(opacity), {opacityRole()}), "auxl", {other});
        }
        const auto first = shown(file.bytes(other));
        const auto second = shown(file.bytes(plain));
        ASSERT_TRUE(first && second);
        const int width = first->size.width;
        const int height = first->size.height;
        const auto gridOfWidth = [&](int canvas) {
            return file.bytes(file.addGrid(2, 2, {canvas, 2 * height}, {other, plain, plain, other},
                                           {crop({2 * width - 2, 2 * height}, 0, 0), rotation(1)}));
        };
        expectShown(gridOfWidth(2 * width), expectedGrid(*first, *second), 0);
        EXPECT_FALSE(shown(gridOfWidth(2 * width + 1))) << "wider than its tiles";
    }
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
