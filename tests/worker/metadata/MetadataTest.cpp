#include "ConvertedPhoto.h"
#include "MadeExif.h"
#include "MadePhoto.h"
#include "OutputFile.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace imageworker {

namespace {

/// What independent readers say of a copy, by exiftool each value on a line as "[group] name: value".
std::string readWith(const std::string &command, const MemoryFile &copy)
{
    const std::string file =
        "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(copy.descriptor());
    const std::unique_ptr<FILE, int (*)(FILE *)> pipe(::popen((command + " " + file + " 2>&1").c_str(), "r"),
                                                      &::pclose);
    std::string text;
    std::array<char, 4096> part = {};
    while (pipe != nullptr && std::fgets(part.data(), part.size(), pipe.get()) != nullptr) {
        text += part.data();
    }
    return text;
}

Bytes xmpPacket(std::size_t length)
{
    return bytesOf("<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta xmlns:x='adobe:ns:meta/'>"
                   "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
                   "<rdf:Description rdf:about='' xmlns:tiff='http://ns.adobe.com/tiff/1.0/'"
                   " xmlns:dc='http://purl.org/dc/elements/1.1/' tiff:Orientation='6' dc:source='harbour'>"
                   "<dc:identifier>" +
                   std::string(length, 'X') +
                   "</dc:identifier></rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end='w'?>");
}

/// Expects exiftool to find every one of @p lines in the copy of @p photo, and nothing to complain of.
void expectMetadata(const Bytes &photo, OutputFormat format, const std::vector<std::string> &lines)
{
    const auto bytes = convert(photo, format);
    ASSERT_TRUE(bytes);
    const MemoryFile copy;
    ASSERT_TRUE(OutputFile(copy.descriptor()).write(*bytes));
    const std::string found = readWith("exiftool -a -G1 -S -n", copy);
    for (const std::string &line : lines) {
        EXPECT_NE(found.find(line), std::string::npos) << line << "\n" << found;
    }
    EXPECT_EQ(found.find("Warning"), std::string::npos) << found;
    if (format == OutputFormat::png) {
        EXPECT_NE(readWith("pngcheck", copy).find("OK"), std::string::npos);
    }
}

TEST(Metadata, ShouldReachTheCopyAndDescribeIt)
{
    for (const std::size_t length : {std::size_t{100}, std::size_t{150'000}}) {
        SCOPED_TRACE(length);
        const Bytes photo = makePhoto({.size = {128, 64},
                                       .orientation = 6,
                                       .exif = makeExif({.orientation = 6}),
                                       .xmp = xmpPacket(length)});
        std::vector<std::string> lines = {"ImageWidth: 64\n",
                                          "ImageHeight: 128\n",
                                          "IFD0] Orientation: 1\n",
                                          "IFD0] Make: Lens\n",
                                          "ExifIFD] DateTimeOriginal: 2024:05:06 07:08:09\n",
                                          "XMP-tiff] Orientation: 1\n",
                                          "XMP-dc] Source: harbour\n",
                                          "XMP-dc] Identifier: " + std::string(100, 'X'),
                                          "ProfileDescription: sRGB"};
        expectMetadata(photo, OutputFormat::jpeg, lines);
        lines.back() = "SRGBRendering: 0\n";
        expectMetadata(photo, OutputFormat::png, lines);
    }
}

TEST(Metadata, ShouldKeepWhatWasShotWhereAndWhenInAJpegThatCannotHoldAll)
{
    expectMetadata(makePhoto({.exif = makeExif({.makerNoteLength = 70'000})}), OutputFormat::jpeg,
                   {"[IFD0] Make: Lens\n", "[ExifIFD] DateTimeOriginal: 2024:05:06 07:08:09\n",
                    "[GPS] GPSLatitudeRef: N\n", "[GPS] GPSLatitude: 54.5\n", "[GPS] GPSLongitudeRef: E\n",
                    "[GPS] GPSLongitude: 10.25\n", "[InteropIFD] InteropIndex: R98\n"});
}

} // namespace

} // namespace imageworker
