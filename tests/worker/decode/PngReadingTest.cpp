#include "PlainPhoto.h"
#include "PngDecoder.h"
#include "PngScanlines.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace imageworker {

namespace {

constexpr PixelSize Size{61, 37};

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

TEST(PngReading, ShouldUndoEveryFilterForPixelsOfThreeAndFourBytes)
{
    const Raster picture = noisyPicture();
    for (const std::size_t channels : {3U, 4U}) {
        for (const int filters : {PNG_FILTER_NONE, PNG_FILTER_SUB, PNG_FILTER_UP, PNG_FILTER_AVG,
                                  PNG_FILTER_PAETH, PNG_ALL_FILTERS}) {
            SCOPED_TRACE(testing::Message() << channels << " bytes, filters " << filters);
            const Bytes file =
                makePng(picture, {}, {.filters = filters, .hasOpacity = channels == 4, .chunkLength = 500});
            const auto header = readPngHeader(file);
            ASSERT_TRUE(header);
            ASSERT_EQ(header->channels, static_cast<int>(channels));
            ASSERT_GT(header->data.size(), 1U);
            PngScanlines rows(header->data, static_cast<std::size_t>(Size.width) * channels, channels);
            for (int y = 0; y < Size.height; ++y) {
                const std::uint8_t *row = rows.next();
                ASSERT_NE(row, nullptr);
                for (std::size_t x = 0; x < static_cast<std::size_t>(Size.width); ++x) {
                    ASSERT_EQ(std::memcmp(row + channels * x, picture.row(y) + 4 * x, channels), 0);
                }
            }
            EXPECT_TRUE(rows.hasEnded());
        }
    }
}

TEST(PngReading, ShouldMakeSmallerByMeansThatCountOpacity)
{
    const Raster picture = noisyPicture();
    constexpr int Side = 4;
    const auto small = decodePng(makePng(picture, {}), Side);
    ASSERT_TRUE(small);
    ASSERT_EQ(small->size, (PixelSize{(Size.width + Side - 1) / Side, (Size.height + Side - 1) / Side}));
    for (int y = 0; y < small->size.height; ++y) {
        for (int x = 0; x < small->size.width; ++x) {
            std::array<double, 4> sums = {};
            int count = 0;
            for (int row = y * Side; row < std::min((y + 1) * Side, Size.height); ++row) {
                for (int column = x * Side; column < std::min((x + 1) * Side, Size.width);
                     ++column, ++count) {
                    const std::uint8_t *pixel = picture.row(row) + std::ptrdiff_t{4} * column;
                    for (std::size_t channel = 0; channel < 3; ++channel) {
                        sums[channel] += double{1} * pixel[channel] * pixel[3];
                    }
                    sums[3] += pixel[3];
                }
            }
            const std::uint8_t *mean = small->row(y) + std::ptrdiff_t{4} * x;
            for (std::size_t channel = 0; channel < 3; ++channel) {
                ASSERT_NEAR(mean[channel], sums[channel] / sums[3], 0.51);
            }
            ASSERT_NEAR(mean[3], sums[3] / count, 0.51);
        }
    }
}

TEST(PngReading, ShouldShowTheSameColoursWhicheverWayItReads)
{
    const Raster picture = noisyPicture();
    for (const PngForm &other : {PngForm{.hasOpacity = false, .hasGammaAlone = true},
                                 PngForm{.hasOpacity = false, .isInterlaced = true}}) {
        const Bytes file = makePng(picture, {}, other);
        const auto whole = decodePng(file, 1);
        const auto small = decodePng(file, 2); // which need not be smaller
        ASSERT_TRUE(whole && small);
        EXPECT_EQ(whole->rgba, small->rgba);
    }
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
