#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadePhoto.h"

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

/// Calls @p check with the places of @p size that are @p step pixels apart, from the middle of the first.
void forEachPlace(PixelSize size, int step, const std::function<void(int, int)> &check)
{
    for (int y = step / 2; y < size.height; y += step) {
        for (int x = step / 2; x < size.width; x += step) {
            SCOPED_TRACE(testing::Message() << x << ", " << y);
            check(x, y);
        }
    }
}

int valueAt(const Raster &raster, int x, int y, int channel = 0)
{
    return raster.row(y)[4L * x + channel];
}

/// What rounding of a multiplied colour may change once it is divided by @p opacity.
int halfAStored(int opacity)
{
    return 255 / (2 * opacity) + 1;
}

unsigned addWithOpacity(HeifFile &file, const Raster &grey, const Raster &opacity, Stored stored)
{
    const unsigned number = file.add(makeAvcItem(grey));
    const unsigned auxiliary = file.add(makeAvcItem(opacity), {opacityRole()});
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
    const Raster opacity = blocks(40);
    const Raster multiplied = drawn(opacity.size, [&](int x, int y) {
        return static_cast<int>(std::lround(200 * valueAt(opacity, x, y) / 255.0));
    });
    const Bytes photo = photoWithOpacity(multiplied, opacity, Stored::MultipliedByOpacity);
    for (const auto &[copy, scale] : {std::pair(shown(photo), 1), {thumbnailOf(photo, 30), 8}}) {
        ASSERT_TRUE(copy);
        ASSERT_EQ(copy->size, (PixelSize{240 / scale, 160 / scale}));
        forEachPlace(copy->size, 5, [&, &raster = *copy, by = scale](int x, int y) {
            const int expected = valueAt(opacity, by * x, by * y);
            ASSERT_EQ(valueAt(raster, x, y, 3), expected);
            ASSERT_NEAR(valueAt(raster, x, y), 200, halfAStored(expected));
        });
    }
    const auto plain = shown(photoWithOpacity(multiplied, opacity));
    ASSERT_TRUE(plain);
    forEachPlace(opacity.size, 20,
                 [&](int x, int y) { ASSERT_EQ(valueAt(*plain, x, y), valueAt(multiplied, x, y)); });
}

TEST(Opacity, ShouldBeStretchedOverALargerPicture)
{
    const Raster small = blocks(8);
    const Raster large = blocks(20);
    const auto copy = shown(photoWithOpacity(large, small));
    ASSERT_TRUE(copy);
    forEachPlace(large.size, 20,
                 [&](int x, int y) { ASSERT_EQ(valueAt(*copy, x, y, 3), valueAt(large, x, y)); });
}

TEST(Opacity, ShouldBeLaidOverWhiteInAJpeg)
{
    const Raster opacity = blocks(16);
    const Raster grey = drawn(opacity.size, [](int, int y) { return y < 32 ? 0 : 100; });
    const auto jpeg = convert(photoWithOpacity(grey, opacity), OutputFormat::jpeg);
    ASSERT_TRUE(jpeg);
    const auto copy = shown(*jpeg);
    ASSERT_TRUE(copy);
    forEachPlace(opacity.size, 16, [&](int x, int y) {
        const int share = valueAt(opacity, x, y);
        const int expected = (valueAt(grey, x, y) * share + 255 * (255 - share)) / 255;
        ASSERT_NEAR(valueAt(*copy, x, y), expected, 4);
    });
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
    forEachPlace(copy->size, 1, [&](int x, int y) {
        // Porter and Duff, "Compositing Digital Images", 1984: "over".
        const double upperShare = valueAt(upperOpacity, x, y) / 255.0;
        const double lowerShare = valueAt(lowerOpacity, x, y) / 255.0 * (1 - upperShare);
        const double share = upperShare + lowerShare;
        const double mixed = (valueAt(upper, x, y) * upperShare + valueAt(lower, x, y) * lowerShare) / share;
        ASSERT_NEAR(valueAt(*copy, x, y, 3), 255 * share, 1.5);
        ASSERT_NEAR(valueAt(*copy, x, y), mixed, 2 + 1 / share);
    });
}

} // namespace

} // namespace imageworker
