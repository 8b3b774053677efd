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
        HeifFile file;
        const auto copy = shown(file.bytes(file.add("avc1", coded.data, coded.properties)));
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
        Bytes data = coded.data;
        data[damaged] ^= 0xFF;
        HeifFile file;
        isNoticed = !shown(file.bytes(file.add("hvc1", data, coded.properties)));
    }
    EXPECT_TRUE(isNoticed);
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
