#include "ConvertedPhoto.h"
#include "JpegOrPngFile.h"
#include "PngDecoder.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace imageworker {

namespace {

constexpr PixelSize Size{60, 36};

/// Smooth with some noise, so that each filter has something to predict and something to be wrong about.
Raster noisyPicture()
{
    std::minstd_rand random(1);
    Raster picture(Size);
    for (std::size_t index = 0; index < picture.rgba.size(); ++index) {
        const std::size_t pixel = index / 4;
        const std::size_t x = pixel % static_cast<std::size_t>(Size.width);
        const std::size_t y = pixel / static_cast<std::size_t>(Size.width);
        picture.rgba[index] = static_cast<std::uint8_t>(index % 4 * 60 + 3 * x + 5 * y + random() % 9);
    }
    return picture;
}

/// The mean of each square of @p side pixels, colours weighted by their opacity.
Raster meansOf(const Raster &picture, int side)
{
    Raster means({picture.size.width / side, picture.size.height / side});
    for (int y = 0; y < means.size.height; ++y) {
        for (int x = 0; x < means.size.width; ++x) {
            std::array<double, 4> sums = {};
            for (int index = 0; index < side * side; ++index) {
                const std::uint8_t *pixel =
                    picture.row(y * side + index / side) + 4L * (x * side + index % side);
                for (std::size_t channel = 0; channel < 3; ++channel) {
                    sums[channel] += double{1} * pixel[channel] * pixel[3];
                }
                sums[3] += pixel[3];
            }
            std::uint8_t *mean = means.row(y) + 4L * x;
            for (std::size_t channel = 0; channel < 3; ++channel) {
                mean[channel] = static_cast<std::uint8_t>(std::lround(sums[channel] / sums[3]));
            }
            mean[3] = static_cast<std::uint8_t>(std::lround(sums[3] / (side * side)));
        }
    }
    return means;
}

TEST(PngReading, ShouldMakeSmallerByMeansWhicheverTheFilters)
{
    constexpr int Side = 2;
    for (const bool hasOpacity : {false, true}) {
        Raster picture = noisyPicture();
        for (std::size_t index = 3; !hasOpacity && index < picture.rgba.size(); index += 4) {
            picture.rgba[index] = 255;
        }
        const auto small = decodePng(makePng(picture, {}, {.filters = PNG_FILTER_NONE}), Side);
        ASSERT_TRUE(small);
        EXPECT_LE(largestDifference(*small, meansOf(picture, Side)), 1); // of single precision
        for (const int filters :
             {PNG_FILTER_SUB, PNG_FILTER_UP, PNG_FILTER_AVG, PNG_FILTER_PAETH, PNG_ALL_FILTERS}) {
            const PngForm form = {.filters = filters, .hasOpacity = hasOpacity, .chunkLength = 500};
            const auto other = decodePng(makePng(picture, {}, form), Side);
            ASSERT_TRUE(other);
            EXPECT_EQ(other->rgba, small->rgba) << hasOpacity << ", filters " << filters;
        }
    }
}

TEST(PngReading, ShouldShowTheSameColoursWhicheverWayItReads)
{
    const Raster picture = noisyPicture();
    for (const PngForm &other : {PngForm{.hasOpacity = false, .isSrgb = false, .hasLinearGamma = true},
                                 PngForm{.hasOpacity = false, .isInterlaced = true}}) {
        const Bytes file = makePng(picture, {}, other);
        const auto whole = decodePng(file, 1);
        const auto small = decodePng(file, 2); // which need not be smaller
        ASSERT_TRUE(whole && small);
        EXPECT_EQ(whole->rgba, small->rgba);
    }
    const auto deep = decodePng(makePng(picture, {}, {.depth = 16}), 1);
    ASSERT_TRUE(deep);
    EXPECT_EQ(deep->rgba, picture.rgba);
}

TEST(PngReading, ShouldNeverShowDamage)
{
    const Bytes file = makePng(noisyPicture(), {}, {.chunkLength = 500});
    const auto header = readPngHeader(file);
    const auto whole = decodePng(file, 2);
    ASSERT_TRUE(header && whole);
    int refused = 0;
    for (const auto &part : header->data) {
        for (std::size_t index = 0; index < part.size(); index += 7) {
            Bytes damaged = file;
            damaged[static_cast<std::size_t>(part.data() - file.data()) + index] ^= 0x10;
            const auto shown = decodePng(damaged, 2);
            refused += shown ? 0 : 1;
            EXPECT_TRUE(!shown || shown->rgba == whole->rgba) << index; // some bits mean nothing
        }
    }
    EXPECT_GT(refused, 500);
}

} // namespace

} // namespace imageworker
