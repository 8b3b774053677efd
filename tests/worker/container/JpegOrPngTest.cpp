#include "ConvertedPhoto.h"
#include "ExactColour.h"
#include "MadeExif.h"
#include "MadePhoto.h"
#include "PhotoReader.h"
#include "PlainPhoto.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

const Bytes endOfImage = {0xFF, 0xD9};

bool hasEnd(const Bytes &file)
{
    return contains(file, endOfImage);
}

Bytes firstPart(const Bytes &file)
{
    return part(file, 0, file.size() * 7 / 10);
}

/// Corner colours that lie well inside all spaces, where profiles are not steep.
Raster mutedColours(bool hasAlpha)
{
    Raster raster = cornerColours({96, 64}, hasAlpha);
    for (std::size_t index = 0; index < raster.rgba.size(); ++index) {
        std::uint8_t &value = raster.rgba[index];
        value = index % 4 == 3 ? value : static_cast<std::uint8_t>(64 + value / 2);
    }
    return raster;
}

/// @p stored turned upside down and taken from @p profile to sRGB.
Raster upsideDown(const Raster &stored, const Bytes &profile)
{
    const ExactSrgb exact(profile);
    Raster turned(stored.size);
    for (std::size_t index = 0; index < stored.rgba.size(); index += 4) {
        const std::uint8_t *code = &stored.rgba[stored.rgba.size() - 4 - index];
        const Pixel shown = exact.of({code[0] / 255.0, code[1] / 255.0, code[2] / 255.0});
        std::ranges::transform(shown, &turned.rgba[index], [](double value) {
            return static_cast<std::uint8_t>(std::lround(255 * value));
        });
        turned.rgba[index + 3] = code[3];
    }
    return turned;
}

TEST(JpegOrPngFiles, ShouldBeTurnedAndFollowTheirProfiles)
{
    constexpr unsigned UpsideDown = 3;
    PlainMetadata metadata = {.exif = makeExif({.orientation = UpsideDown}),
                              .xmp = bytesOf("<x:xmpmeta xmlns:x='adobe:ns:meta/'/>")};
    for (const bool isTable : {false, true}) { // a table takes several segments of a JPEG
        for (const bool isPng : {false, true}) {
            SCOPED_TRACE(testing::Message() << isTable << isPng);
            metadata.iccProfile = savedProfile((isTable ? tableProfile() : displayP3()).get());
            const Raster stored = mutedColours(isPng);
            const Bytes file = isPng ? makePng(stored, metadata) : makeJpeg(stored, metadata);
            constexpr int LossOfQualitySpread = 10;
            expectShown(file, upsideDown(stored, metadata.iccProfile), isPng ? 1 : LossOfQualitySpread);
            const auto photo = readPhoto(*sourceOfBytes(file));
            ASSERT_TRUE(photo);
            EXPECT_EQ(photo->exif, metadata.exif);
            EXPECT_EQ(photo->xmp, metadata.xmp);
        }
    }
}

TEST(JpegOrPngFiles, ShouldBeRefusedWhenPixelsOfAJpegAreMissing)
{
    // An end stands in each file, so only the decoding can tell that it is not that of the pixels.
    const Raster picture = cornerColours({96, 64}, false);
    const Bytes whole = makeJpeg(picture, {});
    EXPECT_FALSE(shown(joined({firstPart(whole), endOfImage}))) << "an end too early";
    Bytes exif = makeExif({.previewLength = 100});
    std::ranges::copy(endOfImage, std::ranges::find(exif, 'P'));
    const Bytes cut = firstPart(makeJpeg(picture, {.exif = exif}));
    EXPECT_TRUE(hasEnd(cut));
    EXPECT_FALSE(shown(cut)) << "only the preview has its end";
    Bytes coarse = makeJpeg(picture, {.exif = exif}, {.isProgressive = true});
    EXPECT_TRUE(shown(coarse));
    const Bytes startOfScan = {0xFF, 0xDA};
    coarse.erase(std::find_end(coarse.begin(), coarse.end(), startOfScan.begin(), startOfScan.end()),
                 coarse.end());
    EXPECT_TRUE(hasEnd(coarse));
    EXPECT_FALSE(shown(coarse)) << "the last scan is missing";
    const HeifFile::Properties extents = {spatialExtents(96, 64)};
    EXPECT_TRUE(shown(photoOf({"jpeg", extents, whole})));
    EXPECT_FALSE(shown(photoOf({"jpeg", extents, firstPart(whole)})));
}

} // namespace

} // namespace imageworker
