#include "PhotoReader.h"

#include "Boxes.h"
#include "Exif.h"
#include "ItemData.h"
#include "JpegOrPngReader.h"
#include "PictureReader.h"
#include "TrackReader.h"

#include <algorithm>

namespace imageworker {

namespace {

constexpr std::uint64_t MaximumMetadata = std::uint64_t{32} << 20U;

/// The primary item, and the items that it shows as an identity or a tone map.
std::vector<std::uint32_t> shownItems(const ItemTable &table)
{
    constexpr std::size_t LongestChain = 8;
    std::vector<std::uint32_t> shown = {table.primary};
    while (shown.size() < LongestChain) {
        const Item *last = table.find(shown.back());
        const bool showsAnother =
            last != nullptr && (last->type == fourCharacters("iden") || last->type == fourCharacters("tmap"));
        const auto inputs =
            showsAnother ? referencesOf(*last, fourCharacters("dimg")) : std::vector<std::uint32_t>();
        if (inputs.empty()) {
            break;
        }
        shown.push_back(inputs.front());
    }
    return shown;
}

/// Whether a metadata item describes one of @p shown (ISO/IEC 23008-12, A.3.3). An item without references
/// describes any.
bool describes(const Item &item, const std::vector<std::uint32_t> &shown)
{
    const auto described = referencesOf(item, fourCharacters("cdsc"));
    return described.empty() || std::ranges::find_first_of(described, shown) != described.end();
}

/// Reads the Exif and XMP items. Unreadable when their data lie outside the file: it is truncated.
Result<void> readMetadata(const Source &source, const ItemTable &table, Photo &photo)
{
    const auto shown = shownItems(table);
    for (const auto &[identifier, item] : table.items) {
        const bool isExif = item.type == fourCharacters("Exif");
        const bool isXmp = item.type == fourCharacters("mime") && item.contentType == "application/rdf+xml";
        Bytes &metadata = isExif ? photo.exif : photo.xmp;
        if ((!isExif && !isXmp) || !metadata.empty() || !describes(item, shown)) {
            continue;
        }
        if (item.extents.size() == 1 && item.extents.front().length == 0) {
            continue; // an entry that was reserved and never filled
        }
        const auto location = locateItem(source, table, item);
        if (!location) {
            return unreadable();
        }
        if (lengthOf(*location) > MaximumMetadata) {
            continue;
        }
        const auto bytes = source.read(*location);
        if (!bytes) {
            return unreadable();
        }
        metadata = isExif ? tiffOfExifItem(*bytes) : *bytes;
    }
    return {};
}

Result<Photo> readPrimaryItem(const Source &source, const ItemTable &table)
{
    auto picture = readPicture(source, table, table.primary);
    Photo photo;
    if (!picture || !readMetadata(source, table, photo)) {
        return unreadable();
    }
    if (!picture->hasOrientation) {
        const unsigned orientation = exifOrientation(photo.exif);
        picture->transformation.applyExifOrientation(orientation);
        if (picture->alpha != nullptr) {
            picture->alpha->transformation.applyExifOrientation(orientation);
        }
    }
    photo.picture = std::move(*picture);
    return photo;
}

} // namespace

Result<Photo> readPhoto(const Source &source)
{
    if (const auto kind = jpegOrPngKind(source)) {
        return readJpegOrPng(source, *kind);
    }
    const auto boxes = readTopLevelBoxes(source);
    if (!boxes) {
        return unreadable();
    }
    if (!boxes->meta.payload.empty()) {
        const auto table = readItemTable(boxes->meta);
        if (!table) {
            return unreadable();
        }
        if (table->find(table->primary) != nullptr) {
            return readPrimaryItem(source, *table);
        }
    }
    auto picture = readFirstPictureOfTrack(boxes->movie);
    if (!picture) {
        return unreadable();
    }
    Photo photo;
    photo.picture = std::move(*picture);
    return photo;
}

} // namespace imageworker
