#include "JpegOrPngReader.h"

#include "Exif.h"
#include "JpegDecoder.h"
#include "MagicBytes.h"
#include "PngDecoder.h"

#include <algorithm>
#include <array>

namespace imageworker {

namespace {

template<typename Header>
Result<Photo> photoOf(JpegOrPng::Kind kind, Result<Header> header)
{
    if (!header) {
        return unreadable();
    }
    JpegOrPng image{kind, header->size, Transformation(header->size)};
    image.transformation.applyExifOrientation(exifOrientation(header->exif));
    return Photo{image, std::move(header->exif), std::move(header->xmp)};
}

} // namespace

std::optional<JpegOrPng::Kind> jpegOrPngKind(const Source &source)
{
    const auto start = source.read(0, std::min<std::uint64_t>(source.size(), PngSignature.size()));
    const auto startsWith = [&start](std::span<const std::uint8_t> signature) {
        return start && start->size() >= signature.size() &&
               std::equal(signature.begin(), signature.end(), start->begin());
    };
    if (startsWith(PngSignature)) {
        return JpegOrPng::Kind::Png;
    }
    return startsWith(JpegSignature) ? std::optional(JpegOrPng::Kind::Jpeg) : std::nullopt;
}

Result<Photo> readJpegOrPng(const Source &source, JpegOrPng::Kind kind)
{
    const auto file = source.read(0, source.size());
    if (!file) {
        return unreadable();
    }
    if (kind == JpegOrPng::Kind::Png) {
        return photoOf(kind, readPngHeader(*file));
    }
    // A truncated file still has its header, so its end marker is required. Cameras may append data after it.
    constexpr std::array<std::uint8_t, 2> End = {0xFF, 0xD9};
    if (std::find_end(file->begin(), file->end(), End.begin(), End.end()) == file->end()) {
        return unreadable();
    }
    return photoOf(kind, readJpegHeader(*file));
}

} // namespace imageworker
