#include "Exif.h"

#include "TiffFields.h"
#include "Xmp.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>

namespace imageworker {

namespace {

/// Writes a TIFF structure as a camera does: two directories, Exif details, a maker note and a preview at the
/// end.
class CameraExif
{
public:
    CameraExif(bool littleEndian, std::size_t makerNoteLength, std::size_t previewLength)
        : m_littleEndian(littleEndian)
    {
        constexpr std::uint32_t First = 8;
        constexpr std::uint32_t Details = First + 2 + 3 * 12 + 4;
        constexpr std::uint32_t Preview = Details + 2 + 5 * 12 + 4;
        constexpr std::uint32_t Values = Preview + 2 + 2 * 12 + 4;
        const auto note = static_cast<std::uint32_t>(makerNoteLength);
        m_bytes = littleEndian ? Bytes{'I', 'I', 42, 0} : Bytes{'M', 'M', 0, 42};
        number(First, 4);
        number(3, 2);
        field(0x0110, 2, 20, Values);       // camera
        field(0x0112, 3, 1, shortValue(6)); // orientation
        field(0x8769, 4, 1, Details);
        number(Preview, 4);
        number(5, 2);
        field(0x9003, 2, 20, Values + 20);   // date
        field(0x9214, 3, 4, Values + 40);    // subject: its middle, width and height
        field(0x927C, 7, note, Values + 48); // maker note
        field(0xA002, 4, 1, 4032);
        field(0xA003, 4, 1, 3024);
        number(0, 4);
        number(2, 2);
        field(0x0201, 4, 1, Values + 48 + note);
        field(0x0202, 4, 1, static_cast<std::uint32_t>(previewLength));
        number(0, 4);
        text("Camera of some maker");
        text("2024:05:06 07:08:09");
        m_bytes.push_back(0);
        for (const std::uint32_t value : {1000U, 500U, 200U, 100U}) {
            number(value, 2);
        }
        m_bytes.insert(m_bytes.end(), makerNoteLength, 'N');
        m_bytes.insert(m_bytes.end(), previewLength, 'P');
    }

    const Bytes &bytes() const { return m_bytes; }

private:
    void number(std::uint32_t value, unsigned width)
    {
        for (unsigned index = 0; index < width; ++index) {
            m_bytes.push_back(
                static_cast<std::uint8_t>(value >> (8 * (m_littleEndian ? index : width - 1 - index))));
        }
    }
    /// A short value stands at the start of its four bytes.
    std::uint32_t shortValue(std::uint32_t value) const { return m_littleEndian ? value : value << 16; }
    void field(std::uint32_t tag, std::uint32_t type, std::uint32_t count, std::uint32_t value)
    {
        number(tag, 2);
        number(type, 2);
        number(count, 4);
        number(value, 4);
    }
    void text(const std::string &value) { m_bytes.insert(m_bytes.end(), value.begin(), value.end()); }

    bool m_littleEndian;
    Bytes m_bytes;
};

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
        Bytes exif = CameraExif(littleEndian, 100, 500).bytes();
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
        Bytes exif = CameraExif(littleEndian, 150'000, 20'000).bytes();
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
    const Bytes whole = CameraExif(true, 20, 20).bytes();
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
    Bytes exif = CameraExif(true, 70'000, 0).bytes();
    constexpr std::size_t CountOfTheLink = 8 + 2 + 2 * 12 + 4;
    exif[CountOfTheLink] = 0x20;
    exif[CountOfTheLink + 1] = 0x03;
    EXPECT_LE(exifWithin(exif, 65'527).size(), 65'527U);
}

TEST(Exif, ShouldFindTheStructureInAnItem)
{
    const Bytes tiff = CameraExif(true, 0, 0).bytes();
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
