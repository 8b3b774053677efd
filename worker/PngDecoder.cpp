#include "PngDecoder.h"

#include "Boxes.h"
#include "SrgbStage.h"

#include <algorithm>
#include <isa-l.h>
#include <png.h>
#include <string_view>

namespace imageworker {

namespace {

constexpr std::size_t SignatureLength = 8;
constexpr std::string_view XmpKeyword("XML:com.adobe.xmp\0\0\0\0\0", 22);

PixelSize sizeOf(ByteReader header)
{
    const std::int64_t width = header.u32();
    const std::int64_t height = header.u32();
    if (header.failed() || !isAcceptable(width, height)) {
        return {};
    }
    return {static_cast<int>(width), static_cast<int>(height)};
}

/// An embedded profile: a name, a method that is always 0, and a zlib stream (W3C PNG, 11.3.2.3). Empty when
/// it is broken or larger than any profile is.
Bytes profileOf(ByteReader chunk)
{
    constexpr std::size_t LargestProfile = std::size_t{4} << 20U;
    chunk.text(); // name
    chunk.u8();
    auto compressed = chunk.rest();
    if (chunk.failed() || compressed.empty()) {
        return {};
    }
    Bytes profile(LargestProfile);
    inflate_state stream;
    isal_inflate_init(&stream);
    stream.crc_flag = ISAL_ZLIB;
    stream.next_in = const_cast<std::uint8_t *>(compressed.data());
    stream.avail_in = static_cast<std::uint32_t>(compressed.size());
    stream.next_out = profile.data();
    stream.avail_out = static_cast<std::uint32_t>(profile.size());
    if (isal_inflate(&stream) != ISAL_DECOMP_OK || stream.block_state != ISAL_BLOCK_FINISH) {
        return {};
    }
    profile.resize(stream.total_out);
    return profile;
}

} // namespace

/// Walks the chunks (W3C PNG, 5.3).
Result<PngHeader> readPngHeader(std::span<const std::uint8_t> file)
{
    PngHeader header;
    ByteReader reader(file);
    reader.take(SignatureLength);
    while (!reader.atEnd()) {
        const std::uint32_t length = reader.u32();
        const std::uint32_t type = reader.u32();
        const auto content = reader.take(length);
        reader.u32(); // checksum
        if (reader.failed()) {
            return unreadable();
        }
        if (type == fourCharacters("IHDR")) {
            header.size = sizeOf(ByteReader(content));
        } else if (type == fourCharacters("eXIf")) {
            header.exif.assign(content.begin(), content.end());
        } else if (type == fourCharacters("iTXt") && content.size() > XmpKeyword.size() &&
                   std::equal(XmpKeyword.begin(), XmpKeyword.end(), content.begin())) {
            header.xmp.assign(content.begin() + XmpKeyword.size(), content.end());
        } else if (type == fourCharacters("iCCP")) {
            header.iccProfile = profileOf(ByteReader(content));
        } else if (type == fourCharacters("IEND") && header.size.width > 0) {
            return header;
        }
    }
    return unreadable();
}

Result<Raster> decodePng(std::span<const std::uint8_t> file)
{
    const auto header = readPngHeader(file);
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (!header || png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0 ||
        !isAcceptable(image.width, image.height)) {
        png_image_free(&image);
        return unreadable();
    }
    const bool isGrey = (image.format & PNG_FORMAT_FLAG_COLOR) == 0;
    image.format = PNG_FORMAT_RGBA;
    image.flags |= PNG_IMAGE_FLAG_16BIT_sRGB; // without it, 16 bits are taken for linear light
    Raster raster({static_cast<int>(image.width), static_cast<int>(image.height)});
    if (png_image_finish_read(&image, nullptr, raster.rgba.data(), 0, nullptr) == 0) {
        return unreadable();
    }
    if (!header->iccProfile.empty()) {
        const auto stage = makeSrgbStage(header->iccProfile, {}, 255, isGrey);
        for (int y = 0; y < raster.size.height; ++y) {
            convertInPlace(*stage, raster.row(y), raster.size.width);
        }
    }
    return raster;
}

} // namespace imageworker
