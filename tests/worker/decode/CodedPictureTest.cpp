#include "AvcPicture.h"
#include "ConvertedPhoto.h"
#include "MadePhoto.h"
#include "PhotoReader.h"

#include <gtest/gtest.h>

namespace imageworker {

namespace {

TEST(CodedPictures, ShouldShowNoColumnThatIsHidden)
{
    // Vectors would like a picture to begin at a multiple of 16 or 32 columns.
    for (const int hidden : {2, 6, 20}) {
        SCOPED_TRACE(hidden);
        const Raster drawn = cornerColours({96, 64}, false);
        const CodedItem coded = makeAvcItem(drawn, hidden);
        const auto copy = shown(photoOf(coded));
        ASSERT_TRUE(copy);
        ASSERT_EQ(copy->size, (PixelSize{96 - hidden, 64}));
        for (int x = 0; x < copy->size.width; ++x) {
            ASSERT_EQ(copy->row(9)[4L * x], drawn.row(9)[4L * (x + hidden)]) << x;
        }
    }
}

TEST(CodedPictures, ShouldBeRefusedWhenTheirDecoderNoticesDamage)
{
    // It would go on and fill in what it could not read. A wrong byte often makes another sound picture, but
    // not everywhere.
    const CodedItem coded = codedItemOf(makePhoto({.size = {128, 128}}));
    constexpr std::size_t FirstAfterTheHeaders = 12; // damage in these is noticed in any case
    bool isNoticed = false;
    for (std::size_t damaged = FirstAfterTheHeaders; !isNoticed && damaged + 1 < coded.data.size();
         ++damaged) {
        CodedItem other = coded;
        other.data[damaged] ^= 0xFF;
        isNoticed = !shown(photoOf(other));
    }
    EXPECT_TRUE(isNoticed);
}

/// The data without each of the units that hold a slice in turn.
std::vector<Bytes> withoutSlices(const CodedItem &coded)
{
    std::vector<Bytes> all;
    for (std::size_t start = 0, end = 0; start < coded.data.size(); start = end) {
        end = start + 4 + numberAt(coded.data, start);
        const unsigned header = coded.data.at(start + 4);
        // ITU-T H.265, table 7-1, and H.264, table 7-1.
        const bool isSlice = coded.type == "hvc1" ? header >> 1 < 32 : (header & 31) == 5;
        if (isSlice) {
            all.push_back(joined({part(coded.data, 0, start), part(coded.data, end, coded.data.size())}));
        }
    }
    return all;
}

TEST(CodedPictures, ShouldBeRefusedWhenASliceIsMissing)
{
    constexpr int Slices = 4;
    const Raster drawn = cornerColours({64 * 4, 64 * 4}, false);
    bool hasSlices = true;
    for (CodedItem coded :
         {codedItemOf(makePhoto({.slices = Slices}, drawn)),
          codedItemOf(makePhoto({.depth = 10, .slices = Slices}, drawn)), makeAvcItem(drawn, 0, Slices)}) {
        SCOPED_TRACE(coded.type);
        const std::vector<Bytes> all = withoutSlices(coded);
        ASSERT_EQ(all.size(), Slices);
        if (all.front().size() < coded.data.size() / Slices) {
            hasSlices = false;
            continue;
        }
        EXPECT_TRUE(shown(photoOf(coded)));
        HeifFile file;
        const unsigned whole = file.add(coded);
        for (const Bytes &data : all) {
            coded.data = data;
            EXPECT_FALSE(shown(photoOf(coded)));
            EXPECT_FALSE(shown(file.bytes(file.addGrid(1, 2, {512, 256}, {whole, file.add(coded)}))));
        }
    }
    if (!hasSlices) {
        GTEST_SKIP() << "AVC only: this x265 (4.1 does) writes one slice and three broken ones";
    }
}

TEST(CodedPictures, ShouldBeRefusedWhenTheirEndNeverArrived)
{
    for (const auto codec : {PhotoRecipe::Codec::Hevc, PhotoRecipe::Codec::Av1}) {
        const Bytes photo = makePhoto({.size = {128, 128}, .codec = codec});
        ASSERT_TRUE(shown(photo));
        for (const std::size_t missing : {20U, 200U}) {
            Bytes filled =
                photo; // as a transfer that breaks off leaves a file that was given its size before
            std::fill(filled.end() - static_cast<std::ptrdiff_t>(missing), filled.end(), std::uint8_t{0});
            EXPECT_FALSE(shown(filled)) << missing;
        }
    }
}

} // namespace

} // namespace imageworker
