#include "PngDecoder.h"
#include "PngScanlines.h"

#include <gtest/gtest.h>
#include <png.h>
#include <random>

namespace imageworker {

namespace {

struct PngRecipe
{
    int filters = PNG_ALL_FILTERS;
    int channels = 4;
    bool hasGammaAlone = false;
    bool isInterlaced = false;
};

constexpr PixelSize Size{61, 37};

/// Smooth with some noise, so that each filter has something to predict and something to be wrong about.
Bytes pixelsOf(int channels)
{
    std::minstd_rand random(1);
    Bytes pixels;
    for (int y = 0; y < Size.height; ++y) {
        for (int x = 0; x < Size.width; ++x) {
            for (int channel = 0; channel < channels; ++channel) {
                pixels.push_back(
                    static_cast<std::uint8_t>(channel * 60 + 3 * x + 5 * y + static_cast<int>(random() % 9)));
            }
        }
    }
    return pixels;
}

/// Written by libpng, in many small chunks.
Bytes pngOf(const Bytes &pixels, const PngRecipe &recipe)
{
    Bytes file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &file,
        [](png_structp writer, png_bytep data, std::size_t length) {
            auto *bytes = static_cast<Bytes *>(png_get_io_ptr(writer));
            bytes->insert(bytes->end(), data, data + length);
        },
        nullptr);
    png_set_compression_buffer_size(png, 500);
    png_set_filter(png, 0, recipe.filters);
    png_set_IHDR(png, info, Size.width, Size.height, 8,
                 recipe.channels == 4 ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB,
                 recipe.isInterlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_BASE,
                 PNG_FILTER_TYPE_BASE);
    if (recipe.hasGammaAlone) {
        png_set_gAMA(png, info, 1.0);
    } else {
        png_set_sRGB_gAMA_and_cHRM(png, info, PNG_sRGB_INTENT_PERCEPTUAL);
    }
    std::vector<png_bytep> rows;
    rows.reserve(static_cast<std::size_t>(Size.height));
    for (int y = 0; y < Size.height; ++y) {
        rows.push_back(const_cast<png_bytep>(pixels.data()) +
                       std::ptrdiff_t{Size.width} * recipe.channels * y);
    }
    png_set_rows(png, info, rows.data());
    png_write_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
    png_destroy_write_struct(&png, &info);
    return file;
}

TEST(PngReading, ShouldUndoEveryFilterForPixelsOfThreeAndFourBytes)
{
    for (const int channels : {3, 4}) {
        const Bytes pixels = pixelsOf(channels);
        for (const int filters : {PNG_FILTER_NONE, PNG_FILTER_SUB, PNG_FILTER_UP, PNG_FILTER_AVG,
                                  PNG_FILTER_PAETH, PNG_ALL_FILTERS}) {
            SCOPED_TRACE(testing::Message() << channels << " bytes, filters " << filters);
            const Bytes file = pngOf(pixels, {.filters = filters, .channels = channels});
            const auto header = readPngHeader(file);
            ASSERT_TRUE(header);
            ASSERT_EQ(header->channels, channels);
            ASSERT_GT(header->data.size(), 1U);
            const std::size_t length =
                static_cast<std::size_t>(Size.width) * static_cast<std::size_t>(channels);
            PngScanlines rows(header->data, length, static_cast<std::size_t>(channels));
            for (std::size_t y = 0; y < static_cast<std::size_t>(Size.height); ++y) {
                const std::uint8_t *row = rows.next();
                ASSERT_NE(row, nullptr);
                ASSERT_TRUE(
                    std::equal(row, row + length, pixels.begin() + static_cast<std::ptrdiff_t>(y * length)));
            }
            EXPECT_TRUE(rows.hasEnded());
        }
    }
}

TEST(PngReading, ShouldMakeSmallerByMeansThatCountOpacity)
{
    const Bytes pixels = pixelsOf(4);
    constexpr int Side = 4;
    const auto small = decodePng(pngOf(pixels, {}), Side);
    ASSERT_TRUE(small);
    ASSERT_EQ(small->size, (PixelSize{(Size.width + Side - 1) / Side, (Size.height + Side - 1) / Side}));
    for (int y = 0; y < small->size.height; ++y) {
        for (int x = 0; x < small->size.width; ++x) {
            std::array<double, 4> sums = {};
            int count = 0;
            for (int row = y * Side; row < std::min((y + 1) * Side, Size.height); ++row) {
                for (int column = x * Side; column < std::min((x + 1) * Side, Size.width);
                     ++column, ++count) {
                    const std::uint8_t *pixel =
                        pixels.data() + std::ptrdiff_t{4} * (row * Size.width + column);
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
    const Bytes pixels = pixelsOf(3);
    for (const PngRecipe &other :
         {PngRecipe{.channels = 3, .hasGammaAlone = true}, PngRecipe{.channels = 3, .isInterlaced = true}}) {
        const Bytes file = pngOf(pixels, other);
        const auto whole = decodePng(file, 1);
        const auto small = decodePng(file, 2); // which need not be smaller
        ASSERT_TRUE(whole && small);
        EXPECT_EQ(whole->rgba, small->rgba);
    }
}

TEST(PngReading, ShouldNeverShowDamage)
{
    const Bytes file = pngOf(pixelsOf(4), {});
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
