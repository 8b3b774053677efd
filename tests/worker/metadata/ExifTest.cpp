#include "Exif.h"

#include "HeifFile.h"
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
    return imageworker::contains(bytes, bytesOf(text));
}

std::uint32_t detail(Bytes &bytes, TiffTag tag, std::size_t index = 0)
{
    const auto tiff = TiffFields::of(bytes);
    const auto fields = tiff->fields(tiff->firstDirectory());
    const auto details = tiff->fields(tiff->value(*fieldOf(fields, TiffTag::ExifDirectory)));
    const TiffField *field = fieldOf(details, tag);
    return field == nullptr ? 0 : tiff->value(*field, index);
}

Transformation cameraHeldUpright()
{
    Transformation transformation({4032, 3024});
    transformation.applyExifOrientation(6);
    return transformation;
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
        EXPECT_EQ(exif.size(), before - 500);
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
        EXPECT_FALSE(contains(exif, "PPPP")) << "the preview shows the photo as it was";
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
        Bytes damaged = whole;
        damaged[length] = 0xFF;
        for (Bytes exif : {part(whole, 0, length), damaged}) {
            describeCopy(exif, Transformation({1, 1}));
            EXPECT_LE(exifWithin(exif, 60).size(), 60U);
        }
    }
}

TEST(Exif, ShouldFindTheStructureInAnItem)
{
    const Bytes tiff = makeExif({});
    const Bytes prefix = {'E', 'x', 'i', 'f', 0, 0};
    // The last three as odd writers do it: the distance counted wrong, or not there at all.
    for (const Bytes &start :
         {joined({{0, 0, 0, 6}, prefix}), Bytes(4), joined({Bytes(4), prefix}), prefix, Bytes()}) {
        EXPECT_EQ(tiffOfExifItem(joined({start, tiff})), tiff) << start.size();
    }
    EXPECT_TRUE(tiffOfExifItem(Bytes{0xFF, 0xFF, 0xFF, 0xFF, 1}).empty());
    EXPECT_TRUE(tiffOfExifItem(Bytes(40, 1)).empty());
}

std::string described(const std::string &packet, PixelSize size)
{
    Bytes xmp = bytesOf(packet);
    describeCopyInXmp(xmp, size);
    return {xmp.begin(), xmp.end()};
}

TEST(Xmp, ShouldDescribeTheUprightCopyInBothForms)
{
    EXPECT_EQ(described("<x tiff:Orientation=\"6\" exif:PixelXDimension='4032' dc:title=\"tiff:Orientation\">"
                        "<tiff:Orientation>8</tiff:Orientation><dc:date>2024</dc:date></x>",
                        {3024, 4032}),
              "<x tiff:Orientation=\"1\" exif:PixelXDimension='3024' dc:title=\"tiff:Orientation\">"
              "<tiff:Orientation>1</tiff:Orientation><dc:date>2024</dc:date></x>");
}

TEST(Xmp, ShouldNotPromiseWhatTheCopyLacks)
{
    const std::string packet =
        "<x hdrgm:Version=\"1.0\" GCamera:MotionPhoto='1' GCamera:MotionPhotoVersion=\"1\""
        " dc:title=\"kept\"><Container:Directory><rdf:Seq><rdf:li/></rdf:Seq>"
        "</Container:Directory><GCamera:MicroVideo/><tiff:Orientation/><dc:date>2024</dc:date></x>";
    EXPECT_EQ(described(packet, {1, 1}), "<x dc:title=\"kept\"><dc:date>2024</dc:date></x>");
    // Whatever it breaks off in, nothing else is lost.
    for (std::size_t length = 0; length < packet.size(); ++length) {
        const bool isKept = described(packet.substr(0, length), {1, 1}).find("kept") != std::string::npos;
        EXPECT_EQ(isKept, length >= packet.find("kept") + 4) << length;
    }
}

} // namespace

} // namespace imageworker
