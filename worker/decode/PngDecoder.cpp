#include "PngDecoder.h"

#include "AreaAverager.h"
#include "ByteReader.h"
#include "MagicBytes.h"
#include "PngScanlines.h"
#include "SrgbTransform.h"

#include <algorithm>
#include <cstring>
#include <isa-l.h>
#include <png.h>
#include <utility>

namespace imageworker {

namespace {

/// W3C PNG, 11.2.1.
void readImageHeader(ByteReader reader, PngHeader &header)
{
    const std::int64_t width = reader.u32();
    const std::int64_t height = reader.u32();
    const unsigned depth = reader.u8();
    const unsigned colourType = reader.u8();
    reader.take(2); // methods of compression and filtering; only one of each exists
    const unsigned interlacing = reader.u8();
    if (reader.failed() || !isAcceptable(width, height)) {
        return;
    }
    header.size = {static_cast<int>(width), static_cast<int>(height)};
    const bool isPlain = depth == 8 && interlacing == 0 && (colourType == 2 || colourType == 6);
    header.isGrey = colourType == 0 || colourType == 4;
    header.channels = !isPlain ? 0 : colourType == 6 ? 4 : 3;
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
    bool isPlain = true;
    bool isSrgb = false;
    std::span<const std::uint8_t> gamma;
    ByteReader reader(file);
    reader.take(PngSignature.size());
    while (!reader.atEnd()) {
        const std::uint32_t length = reader.u32();
        const std::uint32_t type = reader.u32();
        const auto content = reader.take(length);
        reader.u32(); // checksum
        if (reader.failed()) {
            return unreadable();
        }
        if (type == fourCharacters("IHDR")) {
            readImageHeader(ByteReader(content), header);
        } else if (type == fourCharacters("IDAT")) {
            header.data.push_back(content);
        } else if (type == fourCharacters("tRNS")) {
            isPlain = false;
        } else if (type == fourCharacters("gAMA")) {
            gamma = content;
        } else if (type == fourCharacters("sRGB")) {
            isSrgb = true;
        } else if (type == fourCharacters("eXIf")) {
            header.exif.assign(content.begin(), content.end());
        } else if (type == fourCharacters("iTXt") && content.size() > PngXmpStart.size() &&
                   std::equal(PngXmpStart.begin(), PngXmpStart.end(), content.begin())) {
            header.xmp.assign(content.begin() + PngXmpStart.size(), content.end());
        } else if (type == fourCharacters("iCCP")) {
            header.iccProfile = profileOf(ByteReader(content));
        } else if (type == fourCharacters("IEND") && header.size.width > 0) {
            if (isSrgb || !header.iccProfile.empty()) { // which override it (W3C PNG, 12.1)
                header.ignoredGamma = std::exchange(gamma, {});
            }
            if (!isPlain || header.channels == 0 || !gamma.empty()) {
                header.data.clear();
            }
            return header;
        }
    }
    return unreadable();
}

namespace {

Result<Raster> decodeReduced(const PngHeader &header, int reduction)
{
    const auto width = static_cast<std::size_t>(header.size.width);
    const auto channels = static_cast<std::size_t>(header.channels);
    PngScanlines rows(header.data, width * channels, channels);
    AreaAverager averager(header.size, {std::max(header.size.width / reduction, 1),
                                        std::max(header.size.height / reduction, 1)});
    Bytes opaque(width * 4, 255);
    for (int y = 0; y < header.size.height; ++y) {
        const std::uint8_t *row = rows.next();
        if (row == nullptr) {
            return unreadable();
        }
        if (header.channels == 4) {
            averager.addRow(y, row);
            continue;
        }
        for (std::size_t x = 0; x < width; ++x) {
            std::memcpy(&opaque[4 * x], row + 3 * x, 3);
        }
        averager.addRow(y, opaque.data());
    }
    return rows.hasEnded() ? Result<Raster>(averager.take()) : unreadable();
}

/// @p file without the chunk that holds @p gamma: libpng would apply it, whatever else the file says.
Bytes withoutGamma(std::span<const std::uint8_t> file, std::span<const std::uint8_t> gamma)
{
    constexpr std::ptrdiff_t LengthAndType = 8;
    constexpr std::ptrdiff_t Checksum = 4;
    const std::ptrdiff_t start = gamma.data() - file.data();
    Bytes bytes(file.begin(), file.end());
    bytes.erase(bytes.begin() + start - LengthAndType,
                bytes.begin() + start + static_cast<std::ptrdiff_t>(gamma.size()) + Checksum);
    return bytes;
}

Result<Raster> decodeWhole(std::span<const std::uint8_t> file)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0 ||
        !isAcceptable(image.width, image.height)) {
        png_image_free(&image);
        return unreadable();
    }
    image.format = PNG_FORMAT_RGBA;
    image.flags |= PNG_IMAGE_FLAG_16BIT_sRGB; // without it, 16 bits are taken for linear light
    Raster raster({static_cast<int>(image.width), static_cast<int>(image.height)});
    if (png_image_finish_read(&image, nullptr, raster.rgba.data(), 0, nullptr) == 0) {
        return unreadable();
    }
    return raster;
}

} // namespace

Result<Raster> decodePng(std::span<const std::uint8_t> file, int reduction)
{
    const auto header = readPngHeader(file);
    if (!header) {
        return unreadable();
    }
    auto raster = reduction > 1 && !header->data.empty() ? decodeReduced(*header, reduction)
                  : header->ignoredGamma.empty()         ? decodeWhole(file)
                                                 : decodeWhole(withoutGamma(file, header->ignoredGamma));
    if (raster && !header->iccProfile.empty()) {
        const auto transform = makeSrgbTransform(header->iccProfile, {}, 255, header->isGrey);
        for (int y = 0; y < raster->size.height; ++y) {
            convertInPlace(*transform, raster->row(y), raster->size.width);
        }
    }
    return raster;
}

} // namespace imageworker
