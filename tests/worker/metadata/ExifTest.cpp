#include "Exif.h"

#include "MadeExif.h"
#include "TiffFields.h"
#include "Xmp.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>

namespace imageworker {

namespace {

bool contains(const Bytes &bytes, const std::string &text)
{
    return std::search(bytes.begin(), bytes.end(), text.begin(), text.end()) != bytes.end();
}

std::uint32_t detail(Bytes &bytes, TiffTag tag, std::size_t index = 0)
{
    const auto tiff = TiffFields::of(bytes);
    const auto fields = tiff->fields(tiff->firstDirectory());
    const auto details = tiff->fields(tiff->value(*fieldOf(fields, TiffTag::ExifDirectory)));
    const TiffField *field = fieldOf(details, tag);
    return field == nullptr ? 0 : tiff->value(*field, index);
}

Upright cameraHeldUpright()
{
    Upright upright({4032, 3024});
    upright.applyExifOrientation(6);
    return upright;
}

TEST(Exif, ShouldDescribeTheUprightCopyInBothByteOrders)
{
    for (const bool littleEndian : {true, false}) {
        SCOPED_TRACE(littleEndian);
        Bytes exif = makeExif({.isLittleEndian = littleEndian,
                               .orientation = 6,
                               .makerNoteLength = 100,
                               .previewLength = 500,
                               .isPreviewLast = true});
        const std::size_t before = exif.size();
        EXPECT_EQ(exifOrientation(exif), 6U);
        describeCopy(exif, cameraHeldUpright());
        EXPECT_EQ(exifOrientation(exif), 1U);
        EXPECT_EQ(detail(exif, TiffTag::PixelWidth), 3024U);
        EXPECT_EQ(detail(exif, TiffTag::PixelHeight), 4032U);
        const std::array<std::uint32_t, 4> subject = {3024 - 1 - 500, 1000, 100, 200};
        for (std::size_t index = 0; index < subject.size(); ++index) {
            EXPECT_EQ(detail(exif, TiffTag::SubjectArea, index), subject[index]) << index;
        }
        EXPECT_EQ(exif.size(), before - 500) << "the preview shows the photo as it was";
        EXPECT_TRUE(contains(exif, "2024:05:06 07:08:09"));
        EXPECT_TRUE(contains(exif, std::string(100, 'N'))) << "the maker note stays where its offsets point";
    }
}

TEST(Exif, ShouldCutByValueAndKeepDateAndCamera)
{
    constexpr std::size_t Limit = 65'527;
    for (const bool littleEndian : {true, false}) {
        SCOPED_TRACE(littleEndian);
        Bytes exif =
            makeExif({.isLittleEndian = littleEndian, .makerNoteLength = 150'000, .previewLength = 20'000});
        describeCopy(exif, cameraHeldUpright());
        Bytes cut = exifWithin(exif, Limit);
        EXPECT_LE(cut.size(), Limit);
        EXPECT_TRUE(contains(cut, "2024:05:06 07:08:09"));
        EXPECT_TRUE(contains(cut, "Camera of some maker"));
        EXPECT_FALSE(contains(cut, "NNNN"));
        EXPECT_EQ(exifOrientation(cut), 1U);
        EXPECT_EQ(detail(cut, TiffTag::PixelWidth), 3024U);
    }
}

TEST(Exif, ShouldSurviveEveryCutAndEveryDamagedByte)
{
    const Bytes whole = makeExif({.makerNoteLength = 20, .previewLength = 20, .isPreviewLast = true});
    for (std::size_t length = 0; length < whole.size(); ++length) {
        Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        describeCopy(cut, Upright({1, 1}));
        EXPECT_LE(exifWithin(cut, 60).size(), 60U);
        Bytes damaged = whole;
        damaged[length] = 0xFF;
        describeCopy(damaged, Upright({1, 1}));
        EXPECT_LE(exifWithin(damaged, 60).size(), 60U);
    }
}

TEST(Exif, ShouldNotBelieveALinkThatClaimsToBeLong)
{
    // As above, but the link to the details claims to be hundreds of numbers: they must not be copied as a
    // value.
    Bytes exif = makeExif({.makerNoteLength = 70'000});
    auto tiff = *TiffFields::of(exif);
    const auto fields = tiff.fields(tiff.firstDirectory());
    tiff.setNumber(fieldOf(fields, TiffTag::ExifDirectory)->valuePosition - 4, 4, 0x320);
    EXPECT_LE(exifWithin(exif, 65'527).size(), 65'527U);
}

TEST(Exif, ShouldFindTheStructureInAnItem)
{
    const Bytes tiff = makeExif({});
    const std::vector<Bytes> starts = {
        {0, 0, 0, 6, 'E', 'x', 'i', 'f', 0, 0},
        {0, 0, 0, 0},
        // As odd writers do it: the distance counted wrong, or not there at all.
        {0, 0, 0, 0, 'E', 'x', 'i', 'f', 0, 0},
        {'E', 'x', 'i', 'f', 0, 0},
        {},
    };
    for (std::size_t index = 0; index < starts.size(); ++index) {
        Bytes item = starts[index];
        item.insert(item.end(), tiff.begin(), tiff.end());
        EXPECT_EQ(tiffOfExifItem(item), tiff) << index;
    }
    EXPECT_TRUE(tiffOfExifItem(Bytes{0xFF, 0xFF, 0xFF, 0xFF, 1}).empty());
    EXPECT_TRUE(tiffOfExifItem(Bytes(40, 1)).empty());
}

TEST(Xmp, ShouldDescribeTheUprightCopyInBothForms)
{
    const std::string packet =
        "<x tiff:Orientation=\"6\" exif:PixelXDimension='4032' dc:title=\"tiff:Orientation\">"
        "<tiff:Orientation>8</tiff:Orientation><dc:date>2024</dc:date></x>";
    Bytes xmp(packet.begin(), packet.end());
    describeCopyInXmp(xmp, {3024, 4032});
    EXPECT_EQ(std::string(xmp.begin(), xmp.end()),
              "<x tiff:Orientation=\"1\" exif:PixelXDimension='3024' dc:title=\"tiff:Orientation\">"
              "<tiff:Orientation>1</tiff:Orientation><dc:date>2024</dc:date></x>");
}

TEST(Xmp, ShouldNotPromiseWhatTheCopyLacks)
{
    const std::string packet =
        "<x hdrgm:Version=\"1.0\" GCamera:MotionPhoto='1' GCamera:MotionPhotoVersion=\"1\""
        " dc:title=\"kept\"><Container:Directory><rdf:Seq><rdf:li/></rdf:Seq>"
        "</Container:Directory><GCamera:MicroVideo/><tiff:Orientation/><dc:date>2024</dc:date></x>";
    Bytes xmp(packet.begin(), packet.end());
    describeCopyInXmp(xmp, {1, 1});
    EXPECT_EQ(std::string(xmp.begin(), xmp.end()), "<x dc:title=\"kept\"><dc:date>2024</dc:date></x>");
    // Whatever it breaks off in, nothing else is lost.
    for (std::size_t length = 0; length < packet.size(); ++length) {
        Bytes cut(packet.begin(), packet.begin() + static_cast<std::ptrdiff_t>(length));
        describeCopyInXmp(cut, {1, 1});
        EXPECT_EQ(contains(cut, "kept"), length >= packet.find("kept") + 4) << length;
    }
}

} // namespace

} // namespace imageworker
