#include "ConvertedPhoto.h"
#include "MadeExif.h"
#include "MadePhoto.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace imageworker {

namespace {

/// What independent readers say of a copy, each value of exiftool on a line as "group:name value".
std::string readWith(const std::string &command, const MemoryFile &copy)
{
    const std::string file =
        "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(copy.descriptor());
    const std::unique_ptr<FILE, decltype(&::pclose)> pipe(
        ::popen((command + " " + file + " 2>&1").c_str(), "r"), &::pclose);
    std::string text;
    std::array<char, 4096> part = {};
    while (pipe != nullptr && std::fgets(part.data(), part.size(), pipe.get()) != nullptr) {
        text += part.data();
    }
    return text;
}

Bytes xmpPacket(std::size_t length)
{
    const std::string start =
        "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta xmlns:x='adobe:ns:meta/'>"
        "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
        "<rdf:Description rdf:about='' xmlns:tiff='http://ns.adobe.com/tiff/1.0/'"
        " xmlns:dc='http://purl.org/dc/elements/1.1/' tiff:Orientation='6' dc:source='harbour'>"
        "<dc:identifier>";
    const std::string end = "</dc:identifier></rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end='w'?>";
    const std::string packet = start + std::string(length, 'X') + end;
    return {packet.begin(), packet.end()};
}

/// Little-endian TIFF: orientation 6, the camera's maker, and a date in the details.
Bytes exif()
{
    const std::string text("II*\0\10\0\0\0"
                           "\3\0"
                           "\17\1\2\0\5\0\0\0\62\0\0\0"    // maker, 5 characters at 50
                           "\22\1\3\0\1\0\0\0\6\0\0\0"     // orientation
                           "\151\207\4\0\1\0\0\0\70\0\0\0" // details at 56
                           "\0\0\0\0"
                           "Lens\0\0"
                           "\1\0"
                           "\3\220\2\0\24\0\0\0\112\0\0\0" // date, 20 characters at 74
                           "\0\0\0\0"
                           "2024:05:06 07:08:09\0",
                           94);
    return {text.begin(), text.end()};
}

class Metadata : public testing::Test
{
protected:
    static void write(const Bytes &photo, OutputFormat format, const MemoryFile &copy)
    {
        const auto bytes = convert(photo, format);
        ASSERT_TRUE(bytes);
        ASSERT_EQ(::write(copy.descriptor(), bytes->data(), bytes->size()),
                  static_cast<ssize_t>(bytes->size()));
    }
};

TEST_F(Metadata, ShouldReachTheCopyAndDescribeIt)
{
    for (const std::size_t length : {std::size_t{100}, std::size_t{150'000}}) {
        const Bytes photo =
            makePhoto({.size = {128, 64}, .orientation = 6, .exif = exif(), .xmp = xmpPacket(length)});
        for (const OutputFormat format : {OutputFormat::jpeg, OutputFormat::png}) {
            SCOPED_TRACE(testing::Message()
                         << length << " bytes, " << (format == OutputFormat::png ? "PNG" : "JPEG"));
            const MemoryFile copy;
            ASSERT_NO_FATAL_FAILURE(write(photo, format, copy));
            const std::string found = readWith("exiftool -a -G1 -S -n", copy);
            const auto says = [&found](const std::string &line) {
                return found.find(line) != std::string::npos;
            };
            EXPECT_TRUE(says("ImageWidth: 64\n") && says("ImageHeight: 128\n")) << found;
            EXPECT_TRUE(says("IFD0] Orientation: 1\n")) << found;
            EXPECT_TRUE(says("IFD0] Make: Lens\n")) << found;
            EXPECT_TRUE(says("ExifIFD] DateTimeOriginal: 2024:05:06 07:08:09\n")) << found;
            EXPECT_TRUE(says("XMP-tiff] Orientation: 1\n")) << found;
            EXPECT_TRUE(says("XMP-dc] Source: harbour\n")) << found;
            EXPECT_TRUE(says("XMP-dc] Identifier: " + std::string(100, 'X'))) << found;
            EXPECT_FALSE(says("Warning")) << found;
            if (format == OutputFormat::png) {
                EXPECT_NE(readWith("pngcheck", copy).find("OK"), std::string::npos);
                EXPECT_TRUE(says("SRGBRendering: 0\n")) << found;
            } else {
                EXPECT_TRUE(says("ProfileDescription: sRGB")) << found;
            }
        }
    }
}

TEST_F(Metadata, ShouldKeepWhatWasShotWhereAndWhenInAJpegThatCannotHoldAll)
{
    const MemoryFile copy;
    ASSERT_NO_FATAL_FAILURE(
        write(makePhoto({.exif = makeExif({.makerNoteLength = 70'000})}), OutputFormat::jpeg, copy));
    const std::string found = readWith("exiftool -a -G1 -S -n", copy);
    for (const std::string line :
         {"[IFD0] Make: Lens\n", "[ExifIFD] DateTimeOriginal: 2024:05:06 07:08:09\n",
          "[GPS] GPSLatitudeRef: N\n", "[GPS] GPSLatitude: 54.5\n", "[GPS] GPSLongitudeRef: E\n",
          "[GPS] GPSLongitude: 10.25\n", "[InteropIFD] InteropIndex: R98\n"}) {
        EXPECT_NE(found.find(line), std::string::npos) << line << found;
    }
}

TEST_F(Metadata, ShouldNotShowThePhotoAsItWas)
{
    const Bytes photo = makePhoto({.exif = makeExif({.previewLength = 300})});
    const Bytes preview(20, 'P');
    const auto hasPreview = [&preview](const Bytes &file) {
        return std::search(file.begin(), file.end(), preview.begin(), preview.end()) != file.end();
    };
    ASSERT_TRUE(hasPreview(photo));
    for (const OutputFormat format : {OutputFormat::jpeg, OutputFormat::png}) {
        const auto copy = convert(photo, format);
        ASSERT_TRUE(copy);
        EXPECT_FALSE(hasPreview(*copy));
    }
}

} // namespace

} // namespace imageworker
