#include "ConvertedPhoto.h"
#include "ExactColour.h"
#include "JpegOrPngFile.h"
#include "MadeExif.h"
#include "MadePhoto.h"
#include "PhotoReader.h"

#include <algorithm>
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

/// @p picture turned upside down.
Raster turned(Raster picture)
{
    auto *pixels = reinterpret_cast<std::array<std::uint8_t, 4> *>(picture.rgba.data());
    std::reverse(pixels, pixels + picture.rgba.size() / 4);
    return picture;
}

TEST(JpegOrPngFiles, ShouldBeTurnedAndFollowTheirProfiles)
{
    constexpr unsigned UpsideDown = 3;
    FileMetadata metadata = {.exif = makeExif({.orientation = UpsideDown}),
                             .xmp = bytesOf("<x:xmpmeta xmlns:x='adobe:ns:meta/'/>")};
    for (const bool isTable : {false, true}) { // a table takes several segments of a JPEG
        for (const bool isPng : {false, true}) {
            SCOPED_TRACE(testing::Message() << isTable << isPng);
            metadata.iccProfile = savedProfile((isTable ? tableProfile() : displayP3()).get());
            const Raster stored = mutedColours(isPng);
            const Bytes file = isPng ? makePng(stored, metadata) : makeJpeg(stored, metadata);
            constexpr int LossOfQualitySpread = 10;
            expectShown(file, turned(throughProfile(metadata.iccProfile, stored)),
                        isPng ? 1 : LossOfQualitySpread);
            const auto photo = readPhoto(*sourceOfBytes(file));
            ASSERT_TRUE(photo);
            EXPECT_EQ(photo->exif, metadata.exif);
            EXPECT_EQ(photo->xmp, metadata.xmp);
            if (isPng) { // profiles override a gamma, as sRGB does
                expectShown(makePng(stored, metadata, {.hasLinearGamma = true}), shown(file), 0);
                expectShown(makePng(stored, {}, {.hasLinearGamma = true}), stored, 0);
            }
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
