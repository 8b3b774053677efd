#include "ConvertedPhoto.h"
#include "MadePhoto.h"
#include "PhotoReader.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <libheif/heif.h>

namespace imageworker {

namespace {

Bytes readFile(const std::filesystem::path &path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(Conversion, ShouldShowPhotosAsTheIndependentDecoderDoes)
{
    using Chroma = PhotoRecipe::Chroma;
    std::vector<PhotoRecipe> recipes = {{.hasAlpha = true}};
    for (const PixelSize size : {PixelSize{96, 64}, PixelSize{65, 97}, PixelSize{200, 170}}) {
        for (const Chroma chroma : {Chroma::Quarter, Chroma::Full, Chroma::None}) {
            recipes.push_back({.size = size, .chroma = chroma});
        }
        for (unsigned orientation = 2; orientation <= 8; ++orientation) {
            recipes.push_back({.size = size, .orientation = orientation});
        }
    }
    for (const PhotoRecipe &recipe : recipes) {
        SCOPED_TRACE(testing::Message() << recipe.size.width << " x " << recipe.size.height << ", chroma "
                                        << int(recipe.chroma) << ", orientation " << recipe.orientation);
        // Where a side is odd, libheif after 1.15 turns the colours half a sample too far.
        const bool isShifted =
            heif_get_version_number() >= 0x01100000 && recipe.size.width % 2 == 1 && recipe.orientation > 1;
        const Bytes photo = makePhoto(recipe);
        expectShown(photo, decodeIndependently(photo), isShifted ? 2 * Rounding : Rounding);
    }
}

TEST(Conversion, ShouldWriteJpegOfTheSamePicture)
{
    const Bytes photo = makePhoto({.size = {120, 80}, .orientation = 6});
    const auto file = convert(photo, OutputFormat::jpeg);
    ASSERT_TRUE(file);
    const auto copy = shown(*file); // a JPEG is read by its content, like any photo
    const auto reference = decodeIndependently(photo);
    ASSERT_TRUE(copy && reference);
    constexpr int LossOfQuality = 14;
    EXPECT_LE(largestDifference(*copy, *reference), LossOfQuality);
}

TEST(Conversion, ShouldNeverReadACutPhoto)
{
    const Bytes whole = makePhoto({.hasAlpha = true});
    const auto jpeg = convert(whole, OutputFormat::jpeg);
    const auto png = convert(whole, OutputFormat::png);
    ASSERT_TRUE(jpeg && png);
    for (const Bytes &file : {whole, *jpeg, *png}) {
        ASSERT_TRUE(shown(file));
        for (std::size_t length = 0; length < file.size(); length += 7) {
            const Bytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(length));
            EXPECT_FALSE(readPhoto(*sourceOfBytes(cut))) << length << " of " << file.size();
        }
    }
}

TEST(Conversion, ShouldReportAnOutputThatTakesNoBytes)
{
    const Bytes photo = makePhoto({});
    const auto source = sourceOfBytes(photo);
    const auto read = readPhoto(*source);
    ASSERT_TRUE(read);
    for (const OutputFormat format : {OutputFormat::png, OutputFormat::jpeg}) {
        const auto written = writeCopy(*source, *read, -1, format, 0.9);
        ASSERT_FALSE(written);
        EXPECT_EQ(written.error(), ImageWorkerFault::CannotWrite);
    }
}

TEST(Conversion, ShouldMakeThumbnailsThatFit)
{
    struct Case
    {
        PixelSize stored;
        PixelSize reduced;
        unsigned orientation;
    };
    for (const Case &each : {Case{{512, 384}, {240, 180}, 1}, Case{{512, 384}, {240, 180}, 6},
                             Case{{512, 384}, {240, 180}, 7}, Case{{100, 60}, {100, 60}, 1}}) {
        SCOPED_TRACE(testing::Message() << each.stored.width << ", orientation " << each.orientation);
        const auto thumbnail =
            thumbnailOf(makePhoto({.size = each.stored, .orientation = each.orientation}), 240);
        // The made colours change evenly, so the same photo of a smaller size shows what is expected.
        const auto expected =
            decodeIndependently(makePhoto({.size = each.reduced, .orientation = each.orientation}));
        ASSERT_TRUE(thumbnail && expected);
        constexpr int LossOfQuality = 7;
        EXPECT_LE(largestDifference(*thumbnail, *expected), LossOfQuality);
    }
}

TEST(Conversion, ShouldReadSamplePhotosAndRefuseDamagedOnes)
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
        EXPECT_EQ(convert(readFile(entry.path()), OutputFormat::png).has_value(), !isDamaged);
    }
}

} // namespace

} // namespace imageworker
