#include "PlainFileReader.h"

#include "Boxes.h"
#include "Exif.h"
#include "JpegDecoder.h"

#include <algorithm>
#include <array>
#include <png.h>
#include <string_view>

namespace imageworker {

namespace {

constexpr std::array<std::uint8_t, 8> PngSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr std::array<std::uint8_t, 3> JpegStart = {0xFF, 0xD8, 0xFF};
constexpr std::string_view XmpKeyword("XML:com.adobe.xmp\0\0\0\0\0", 22);

/// Walks the chunks of a PNG (W3C PNG, 5.3) for its size and metadata. Unreadable without the one that ends
/// it.
Result<Photo> readPng(std::span<const std::uint8_t> file)
{
    Photo photo;
    PlainFile plain{PlainFile::Kind::Png, {}, {}};
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
            ByteReader header(content);
            const std::int64_t width = header.u32();
            const std::int64_t height = header.u32();
            if (header.failed() || !isAcceptable(width, height)) {
                return unreadable();
            }
            plain.stored = {static_cast<int>(width), static_cast<int>(height)};
        } else if (type == fourCharacters("eXIf")) {
            photo.exif.assign(content.begin(), content.end());
        } else if (type == fourCharacters("iTXt") && content.size() > XmpKeyword.size() &&
                   std::equal(XmpKeyword.begin(), XmpKeyword.end(), content.begin())) {
            photo.xmp.assign(content.begin() + XmpKeyword.size(), content.end());
        } else if (type == fourCharacters("IEND") && plain.stored.width > 0) {
            photo.picture = plain;
            return photo;
        }
    }
    return unreadable();
}

Result<Photo> readJpeg(std::span<const std::uint8_t> file)
{
    auto header = readJpegHeader(file);
    if (!header) {
        return unreadable();
    }
    // A cut file still has its header: the end must be there, too. Cameras may append more after it.
    constexpr std::array<std::uint8_t, 2> End = {0xFF, 0xD9};
    if (std::find_end(file.begin(), file.end(), End.begin(), End.end()) == file.end()) {
        return unreadable();
    }
    Photo photo;
    photo.picture = PlainFile{PlainFile::Kind::Jpeg, header->size, {}};
    photo.exif = std::move(header->exif);
    photo.xmp = std::move(header->xmp);
    return photo;
}

Result<Raster> decodePng(std::span<const std::uint8_t> file)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0 ||
        !isAcceptable(image.width, image.height)) {
        png_image_free(&image);
        return unreadable();
    }
    image.format = PNG_FORMAT_RGBA;
    Raster raster({static_cast<int>(image.width), static_cast<int>(image.height)});
    if (png_image_finish_read(&image, nullptr, raster.rgba.data(), 0, nullptr) == 0) {
        return unreadable();
    }
    return raster;
}

} // namespace

std::optional<PlainFile::Kind> plainFileKind(const Source &source)
{
    const auto start = source.read(0, std::min<std::uint64_t>(source.size(), PngSignature.size()));
    if (start && std::ranges::equal(*start, PngSignature)) {
        return PlainFile::Kind::Png;
    }
    if (start && start->size() >= JpegStart.size() &&
        std::equal(JpegStart.begin(), JpegStart.end(), start->begin())) {
        return PlainFile::Kind::Jpeg;
    }
    return std::nullopt;
}

Result<Photo> readPlainFile(const Source &source, PlainFile::Kind kind)
{
    const auto file = source.read(0, source.size());
    auto photo = !file ? unreadable() : kind == PlainFile::Kind::Png ? readPng(*file) : readJpeg(*file);
    if (!photo) {
        return unreadable();
    }
    auto &plain = std::get<PlainFile>(photo->picture);
    plain.upright = Upright(plain.stored);
    plain.upright.applyExifOrientation(exifOrientation(photo->exif));
    return photo;
}

Result<Raster> decodePlainFile(const Source &source, const PlainFile &file, int smallestSide)
{
    const auto bytes = source.read(0, source.size());
    if (!bytes) {
        return unreadable();
    }
    if (file.kind == PlainFile::Kind::Png) {
        return decodePng(*bytes);
    }
    unsigned reduction = 1;
    const auto longest = static_cast<unsigned>(std::max(file.stored.width, file.stored.height));
    while (smallestSide > 0 && reduction < 8 &&
           longest / (2 * reduction) >= static_cast<unsigned>(smallestSide)) {
        reduction *= 2;
    }
    return decodeJpeg(*bytes, reduction);
}

} // namespace imageworker
