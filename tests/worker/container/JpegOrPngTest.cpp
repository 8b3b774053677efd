#include "ConvertedPhoto.h"
#include "ExactColour.h"
#include "HeifFile.h"
#include "MadeExif.h"
#include "MadePhoto.h"
#include "PhotoReader.h"
#include "PlainPhoto.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

constexpr std::array<std::uint8_t, 2> EndOfImage = {0xFF, 0xD9};
constexpr std::array<std::uint8_t, 2> StartOfScan = {0xFF, 0xDA};

bool hasEnd(const Bytes &file)
{
    return std::search(file.begin(), file.end(), EndOfImage.begin(), EndOfImage.end()) != file.end();
}

Bytes firstPart(const Bytes &file, double share)
{
    const auto length = static_cast<std::ptrdiff_t>(share * static_cast<double>(file.size()));
    return {file.begin(), file.begin() + length};
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

class JpegOrPngFiles : public testing::Test
{
protected:
    /// @p stored turned upside down and taken from @p profile to sRGB.
    static void expectShown(const Bytes &file, const Raster &stored, const Bytes &profile, double tolerance)
    {
        const auto copy = shown(file);
        ASSERT_TRUE(copy);
        ASSERT_EQ(copy->size, stored.size);
        const ExactSrgb exact(profile);
        for (std::size_t index = 0; index < stored.rgba.size(); index += 4) {
            const std::uint8_t *code = &stored.rgba[stored.rgba.size() - 4 - index];
            const Pixel expected = exact.of({code[0] / 255.0, code[1] / 255.0, code[2] / 255.0});
            for (std::size_t channel = 0; channel < 3; ++channel) {
                ASSERT_NEAR(copy->rgba[index + channel], 255 * expected[channel], tolerance);
            }
            ASSERT_EQ(copy->rgba[index + 3], code[3]);
        }
    }

    static void expectMetadata(const Bytes &file, const PlainMetadata &metadata)
    {
        const auto photo = readPhoto(*sourceOfBytes(file));
        ASSERT_TRUE(photo);
        EXPECT_EQ(photo->exif, metadata.exif);
        EXPECT_EQ(photo->xmp, metadata.xmp);
    }
};

TEST_F(JpegOrPngFiles, ShouldBeTurnedAndFollowTheirProfiles)
{
    constexpr unsigned UpsideDown = 3;
    const Bytes exif = makeExif({.orientation = UpsideDown});
    const std::string packet = "<x:xmpmeta xmlns:x='adobe:ns:meta/'/>";
    const Bytes xmp(packet.begin(), packet.end());
    for (const bool isTable : {false, true}) { // a table takes several segments of a JPEG
        SCOPED_TRACE(isTable);
        const Bytes profile = savedProfile((isTable ? tableProfile() : displayP3()).get());
        const PlainMetadata metadata = {profile, exif, xmp};
        const Raster opaque = mutedColours(false);
        constexpr double LossOfQualitySpread = 10;
        const Bytes jpeg = makeJpeg(opaque, metadata);
        expectShown(jpeg, opaque, profile, LossOfQualitySpread);
        expectMetadata(jpeg, metadata);
        const Raster clear = mutedColours(true);
        const Bytes png = makePng(clear, metadata);
        expectShown(png, clear, profile, 1);
        expectMetadata(png, metadata);
    }
}

TEST_F(JpegOrPngFiles, ShouldBeRefusedWhenPixelsOfAJpegAreMissing)
{
    // An end stands in each file, so only the decoding can tell that it is not that of the pixels.
    const Bytes whole = makeJpeg(cornerColours({96, 64}, false), {});
    Bytes ended = firstPart(whole, 0.7);
    ended.insert(ended.end(), EndOfImage.begin(), EndOfImage.end());
    EXPECT_FALSE(shown(ended)) << "an end too early";
    Bytes exif = makeExif({.previewLength = 100});
    *std::ranges::find(exif, 'P') = EndOfImage[0];
    *std::ranges::find(exif, 'P') = EndOfImage[1];
    const Bytes cut = firstPart(makeJpeg(cornerColours({96, 64}, false), {.exif = exif}), 0.7);
    EXPECT_TRUE(hasEnd(cut));
    EXPECT_FALSE(shown(cut)) << "only the preview has its end";
    Bytes coarse = makeJpeg(cornerColours({96, 64}, false), {.exif = exif}, {.isProgressive = true});
    EXPECT_TRUE(shown(coarse));
    coarse.erase(std::find_end(coarse.begin(), coarse.end(), StartOfScan.begin(), StartOfScan.end()),
                 coarse.end());
    EXPECT_TRUE(hasEnd(coarse));
    EXPECT_FALSE(shown(coarse)) << "the last scan is missing";
    HeifFile file;
    EXPECT_TRUE(shown(file.bytes(file.add("jpeg", whole, {spatialExtents(96, 64)}))));
    EXPECT_FALSE(shown(file.bytes(file.add("jpeg", firstPart(whole, 0.7), {spatialExtents(96, 64)}))));
}

} // namespace

} // namespace imageworker
