#include "ConvertedPhoto.h"
#include "MadePhoto.h"
#include "PhotoReader.h"
#include "Thumbnail.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace imageworker {

namespace {

Bytes readFile(const std::filesystem::path &path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class Conversion : public testing::Test
{
protected:
    /// Expects the PNG of a photo to be what the independent decoder shows, within its rounding.
    static void expectLikeIndependentDecoder(const PhotoRecipe &recipe)
    {
        constexpr int Rounding = 2; // the other decoder rounds to integers in between
        const Bytes photo = makePhoto(recipe);
        const auto file = convert(photo, CopyFormat::Png);
        ASSERT_TRUE(file);
        const auto copy = readPng(*file);
        const auto reference = decodeIndependently(photo);
        ASSERT_TRUE(copy && reference);
        ASSERT_EQ(copy->size, reference->size);
        EXPECT_LE(largestDifference(*copy, *reference), Rounding);
    }
};

TEST_F(Conversion, ShouldShowPixelsAsTheIndependentDecoderDoes)
{
    for (const PixelSize size : {PixelSize{96, 64}, PixelSize{65, 97}, PixelSize{200, 170}}) {
        for (const auto chroma :
             {PhotoRecipe::Chroma::Quarter, PhotoRecipe::Chroma::Full, PhotoRecipe::Chroma::None}) {
            SCOPED_TRACE(testing::Message()
                         << size.width << " x " << size.height << " chroma " << int(chroma));
            expectLikeIndependentDecoder({.size = size, .chroma = chroma});
        }
    }
}

TEST_F(Conversion, ShouldTurnPhotosUprightAsTheIndependentDecoderDoes)
{
    for (const PixelSize size :
         {PixelSize{96, 64}, PixelSize{65, 97}}) { // the encoder makes tiles of odd sizes
        for (unsigned orientation = 1; orientation <= 8; ++orientation) {
            SCOPED_TRACE(testing::Message() << size.width << " x " << size.height << ", " << orientation);
            expectLikeIndependentDecoder({.size = size, .orientation = orientation});
        }
    }
}

TEST_F(Conversion, ShouldKeepOpacityInPng)
{
    expectLikeIndependentDecoder({.hasAlpha = true});
}

TEST_F(Conversion, ShouldWriteJpegOfTheSamePicture)
{
    const Bytes photo = makePhoto({.size = {120, 80}, .orientation = 6});
    const auto file = convert(photo, CopyFormat::Jpeg);
    ASSERT_TRUE(file);
    // A JPEG is read by content like any photo, so it can be converted once more for its pixels.
    const auto again = convert(*file, CopyFormat::Png);
    ASSERT_TRUE(again);
    const auto copy = readPng(*again);
    const auto reference = decodeIndependently(photo);
    ASSERT_TRUE(copy && reference);
    ASSERT_EQ(copy->size, (PixelSize{80, 120}));
    constexpr int LossOfQuality = 14;
    EXPECT_LE(largestDifference(*copy, *reference), LossOfQuality);
}

TEST_F(Conversion, ShouldNeverReadACutPhoto)
{
    const Bytes whole = makePhoto({.hasAlpha = true});
    const auto jpeg = convert(whole, CopyFormat::Jpeg);
    const auto png = convert(whole, CopyFormat::Png);
    ASSERT_TRUE(jpeg && png);
    for (const Bytes &file : {whole, *jpeg, *png}) {
        ASSERT_TRUE(convert(file, CopyFormat::Png));
        for (std::size_t length = 0; length < file.size(); length += 7) {
            const Bytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(length));
            EXPECT_FALSE(readPhoto(*sourceOfBytes(cut))) << length << " of " << file.size();
        }
    }
}

TEST_F(Conversion, ShouldRefusePicturesWhoseDataNeverArrived)
{
    Bytes photo = makePhoto({});
    // A transfer that reserved the file and then stopped leaves zeros where the picture should be.
    const std::size_t arrived = photo.size() - photo.size() / 3;
    std::fill(photo.begin() + static_cast<std::ptrdiff_t>(arrived), photo.end(), std::uint8_t{0});
    EXPECT_FALSE(convert(photo, CopyFormat::Png));
}

TEST_F(Conversion, ShouldReportAnOutputThatTakesNoBytes)
{
    const Bytes photo = makePhoto({});
    const auto source = sourceOfBytes(photo);
    const auto read = readPhoto(*source);
    ASSERT_TRUE(read);
    for (const CopyFormat format : {CopyFormat::Png, CopyFormat::Jpeg}) {
        const auto written = writeCopy(*source, *read, -1, format, 0.9);
        ASSERT_FALSE(written);
        EXPECT_EQ(written.error(), Fault::CannotWrite);
    }
}

TEST_F(Conversion, ShouldMakeThumbnailsThatFit)
{
    struct Case
    {
        PixelSize stored;
        unsigned orientation;
        PixelSize thumbnail;
    };
    for (const Case &expected : {Case{{512, 384}, 1, {240, 180}}, Case{{512, 384}, 6, {180, 240}},
                                 Case{{512, 384}, 7, {180, 240}}, Case{{100, 60}, 1, {100, 60}}}) {
        const Bytes photo = makePhoto({.size = expected.stored, .orientation = expected.orientation});
        const auto thumbnail = thumbnailOf(photo, 240);
        ASSERT_TRUE(thumbnail);
        ASSERT_EQ(thumbnail->size, expected.thumbnail);
        const auto reference = decodeIndependently(photo);
        ASSERT_TRUE(reference);
        // The colours change evenly, so a pixel of the thumbnail is like the one in the middle of what it
        // covers.
        const int scale = reference->size.width / thumbnail->size.width;
        for (int y = 1; y < thumbnail->size.height - 1; y += 10) {
            for (int x = 1; x < thumbnail->size.width - 1; x += 10) {
                const int fullX = (2 * x + 1) * reference->size.width / (2 * thumbnail->size.width);
                const int fullY = (2 * y + 1) * reference->size.height / (2 * thumbnail->size.height);
                const int difference = thumbnail->row(y)[4L * x] - reference->row(fullY)[4L * fullX];
                EXPECT_LE(std::abs(difference), 4 + scale) << x << ", " << y;
            }
        }
    }
}

TEST_F(Conversion, ShouldReadSamplePhotosAndRefuseDamagedOnes)
{
    const std::filesystem::path samples(LUMAPORT_SAMPLE_PHOTOS);
    if (!std::filesystem::exists(samples)) {
        GTEST_SKIP() << "no sample photos in " << samples;
    }
    for (const auto &entry : std::filesystem::recursive_directory_iterator(samples)) {
        const std::string name = entry.path().filename();
        const bool isDamaged = name.starts_with("bad-") || entry.path().parent_path().filename() == "hostile";
        constexpr std::uintmax_t Small = 500'000; // larger ones take long under the sanitizers
        if (!entry.is_regular_file() || entry.path().extension() == ".md" || entry.file_size() > Small) {
            continue;
        }
        SCOPED_TRACE(name);
        const auto copy = convert(readFile(entry.path()), CopyFormat::Png);
        EXPECT_EQ(copy.has_value(), !isDamaged);
    }
}

} // namespace

} // namespace imageworker
