#include "JpegOrPngReader.h"

#include "Exif.h"
#include "JpegDecoder.h"
#include "MagicBytes.h"
#include "PngDecoder.h"

#include <algorithm>
#include <array>

namespace imageworker {

namespace {

constexpr std::array<std::uint8_t, 3> JpegStart = {0xFF, 0xD8, 0xFF};

Result<Photo> readPng(std::span<const std::uint8_t> file)
{
    auto header = readPngHeader(file);
    if (!header) {
        return unreadable();
    }
    Photo photo;
    photo.picture = JpegOrPng{JpegOrPng::Kind::Png, header->size, {}};
    photo.exif = std::move(header->exif);
    photo.xmp = std::move(header->xmp);
    return photo;
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
    photo.picture = JpegOrPng{JpegOrPng::Kind::Jpeg, header->size, {}};
    photo.exif = std::move(header->exif);
    photo.xmp = std::move(header->xmp);
    return photo;
}

} // namespace

std::optional<JpegOrPng::Kind> jpegOrPngKind(const Source &source)
{
    const auto start = source.read(0, std::min<std::uint64_t>(source.size(), PngSignature.size()));
    if (start && std::ranges::equal(*start, PngSignature)) {
        return JpegOrPng::Kind::Png;
    }
    if (start && start->size() >= JpegStart.size() &&
        std::equal(JpegStart.begin(), JpegStart.end(), start->begin())) {
        return JpegOrPng::Kind::Jpeg;
    }
    return std::nullopt;
}

Result<Photo> readJpegOrPng(const Source &source, JpegOrPng::Kind kind)
{
    const auto file = source.read(0, source.size());
    auto photo = !file ? unreadable() : kind == JpegOrPng::Kind::Png ? readPng(*file) : readJpeg(*file);
    if (!photo) {
        return unreadable();
    }
    auto &image = std::get<JpegOrPng>(photo->picture);
    image.upright = Upright(image.stored);
    image.upright.applyExifOrientation(exifOrientation(photo->exif));
    return photo;
}

} // namespace imageworker
