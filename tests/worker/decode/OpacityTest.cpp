#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadePhoto.h"
#include "PhotoReader.h"
#include "Thumbnail.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

enum class Stored { AsShown, MultipliedByOpacity };

/// Grey of the value that @p valueAt gives for each place.
Raster drawn(PixelSize size, const std::function<int(int, int)> &valueAt)
{
    Raster raster(size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            std::fill_n(raster.row(y) + std::ptrdiff_t{4} * x, 4, static_cast<std::uint8_t>(valueAt(x, y)));
        }
    }
    return raster;
}

/// Six by four blocks, all of other opacities.
Raster blocks(int side)
{
    return drawn({6 * side, 4 * side},
                 [side](int x, int y) { return 10 + 10 * (x / side + 6 * (y / side)); });
}

/// The brightness that would be shown, darker to the right, over any opacity.
int brightnessAt(int x, int width)
{
    return 250 - 200 * x / width;
}

unsigned addWithOpacity(HeifFile &file, const Raster &grey, const Raster &opacity, Stored stored)
{
    const CodedItem master = makeAvcItem(grey);
    CodedItem alpha = makeAvcItem(opacity);
    alpha.properties.push_back(opacityRole());
    const unsigned number = file.add("avc1", master.data, master.properties);
    const unsigned auxiliary = file.add("avc1", alpha.data, alpha.properties);
    file.refer(auxiliary, "auxl", {number});
    if (stored == Stored::MultipliedByOpacity) {
        file.refer(number, "prem", {auxiliary});
    }
    return number;
}

Bytes photoWithOpacity(const Raster &grey, const Raster &opacity, Stored stored = Stored::AsShown)
{
    HeifFile file;
    return file.bytes(addWithOpacity(file, grey, opacity, stored));
}

TEST(Opacity, ShouldDivideColoursThatWereMultipliedByIt)
{
    constexpr PixelSize Size{64, 48};
    const Raster opacity = drawn(Size, [](int, int y) { return 255 - 5 * y; });
    const Raster multiplied = drawn(Size, [](int x, int y) {
        return static_cast<int>(std::lround(brightnessAt(x, Size.width) * (255 - 5 * y) / 255.0));
    });
    const auto divided = shown(photoWithOpacity(multiplied, opacity, Stored::MultipliedByOpacity));
    const auto plain = shown(photoWithOpacity(multiplied, opacity));
    ASSERT_TRUE(divided && plain);
    for (int y = 0; y < Size.height; ++y) {
        for (int x = 0; x < Size.width; ++x) {
            const std::ptrdiff_t at = std::ptrdiff_t{4} * x;
            const int expected = 255 - 5 * y;
            const int halfAStored = 255 / (2 * expected) + 1;
            ASSERT_NEAR(divided->row(y)[at], brightnessAt(x, Size.width), halfAStored);
            ASSERT_EQ(divided->row(y)[at + 3], expected);
            ASSERT_EQ(plain->row(y)[at], multiplied.row(y)[at]);
        }
    }
}

TEST(Opacity, ShouldBeStretchedOverALargerPicture)
{
    const Raster small = blocks(8);
    const Raster large = blocks(20);
    const auto copy = shown(photoWithOpacity(large, small));
    ASSERT_TRUE(copy);
    for (int y = 10; y < large.size.height; y += 20) { // the middle of each block
        for (int x = 10; x < large.size.width; x += 20) {
            ASSERT_EQ(copy->row(y)[4L * x + 3], large.row(y)[4L * x]) << x << ", " << y;
        }
    }
}

TEST(Opacity, ShouldBeLaidOverWhiteInAJpeg)
{
    const Raster opacity = blocks(16);
    const Raster grey = drawn(opacity.size, [](int, int y) { return y < 32 ? 0 : 100; });
    const auto jpeg = convert(photoWithOpacity(grey, opacity), OutputFormat::jpeg);
    ASSERT_TRUE(jpeg);
    const auto copy = shown(*jpeg);
    ASSERT_TRUE(copy);
    const Raster expected = drawn(opacity.size, [&](int x, int y) {
        const int share = opacity.row(y)[4L * x];
        return (grey.row(y)[4L * x] * share + 255 * (255 - share)) / 255;
    });
    for (int y = 8; y < expected.size.height; y += 16) {
        for (int x = 8; x < expected.size.width; x += 16) {
            ASSERT_NEAR(copy->row(y)[4L * x], expected.row(y)[4L * x], 4) << x << ", " << y;
        }
    }
}

TEST(Opacity, ShouldShowInThumbnails)
{
    const Raster opacity = blocks(40);
    const Raster multiplied = drawn(opacity.size, [&](int x, int y) {
        return static_cast<int>(std::lround(200 * opacity.row(y)[4L * x] / 255.0));
    });
    const Bytes photo = photoWithOpacity(multiplied, opacity, Stored::MultipliedByOpacity);
    const auto thumbnail = thumbnailOf(photo, 30);
    ASSERT_TRUE(thumbnail);
    ASSERT_EQ(thumbnail->size, (PixelSize{30, 20}));
    for (int y = 2; y < 20; y += 5) {
        for (int x = 2; x < 30; x += 5) {
            const int expected = opacity.row(8 * y)[4L * 8 * x];
            ASSERT_EQ(thumbnail->row(y)[4L * x + 3], expected) << x << ", " << y;
            const int halfAStored = 255 / (2 * expected) + 1;
            ASSERT_NEAR(thumbnail->row(y)[4L * x], 200, halfAStored) << x << ", " << y;
        }
    }
}

TEST(Opacity, ShouldMixTheLayersOfAnOverlay)
{
    const Raster lower = drawn({64, 48}, [](int x, int) { return 4 * x; });
    const Raster upper = drawn({64, 48}, [](int x, int y) { return 2 * x + 2 * y; });
    const Raster lowerOpacity = drawn({64, 48}, [](int, int y) { return 255 - 5 * y; });
    const Raster upperOpacity = drawn({64, 48}, [](int x, int) { return 4 * x; });
    HeifFile file;
    const unsigned below = addWithOpacity(file, lower, lowerOpacity, Stored::AsShown);
    const unsigned above = addWithOpacity(file, upper, upperOpacity, Stored::AsShown);
    const Bytes noFill(8);
    const Bytes description = joined({Bytes(2), noFill, bigEndian(64, 2), bigEndian(48, 2), Bytes(8)});
    const unsigned overlay = file.add("iovl", description, {spatialExtents(64, 48)});
    file.refer(overlay, "dimg", {below, above});
    const auto copy = shown(file.bytes(overlay));
    ASSERT_TRUE(copy);
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 64; ++x) {
            const std::ptrdiff_t at = std::ptrdiff_t{4} * x;
            // Porter and Duff, "Compositing Digital Images", 1984: "over".
            const double upperShare = upperOpacity.row(y)[at] / 255.0;
            const double lowerShare = lowerOpacity.row(y)[at] / 255.0 * (1 - upperShare);
            const double share = upperShare + lowerShare;
            const double mixed = (upper.row(y)[at] * upperShare + lower.row(y)[at] * lowerShare) / share;
            ASSERT_NEAR(copy->row(y)[at + 3], 255 * share, 1.5) << x << ", " << y;
            ASSERT_NEAR(copy->row(y)[at], mixed, 2 + 1 / share) << x << ", " << y;
        }
    }
}

} // namespace

} // namespace imageworker
