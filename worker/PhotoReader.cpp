#include "PhotoReader.h"

#include "Boxes.h"
#include "Exif.h"
#include "ItemData.h"
#include "PictureReader.h"
#include "PlainFileReader.h"
#include "TrackReader.h"

#include <algorithm>

namespace imageworker {

namespace {

constexpr std::uint64_t MaximumMetadata = std::uint64_t{32} << 20U;

/// Whether a metadata item tells of the primary item (ISO/IEC 23008-12, A.3.3); one that refers to nothing
/// tells of it, too.
bool describesPrimary(const ItemTable &table, const Item &item)
{
    const auto described = referencesOf(item, fourCharacters("cdsc"));
    return described.empty() || std::ranges::find(described, table.primary) != described.end();
}

/// Reads the Exif and XMP items. Bytes that lie outside the file mean that the file was cut.
Result<void> readMetadata(const Source &source, const ItemTable &table, Photo &photo)
{
    for (const auto &[identifier, item] : table.items) {
        const bool isExif = item.type == fourCharacters("Exif");
        const bool isXmp = item.type == fourCharacters("mime") && item.contentType == "application/rdf+xml";
        Bytes &metadata = isExif ? photo.exif : photo.xmp;
        if ((!isExif && !isXmp) || !metadata.empty() || !describesPrimary(table, item)) {
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
        const auto bytes = readAll(source, *location);
        if (!bytes) {
            return unreadable();
        }
        metadata = isExif ? tiffOfExifItem(*bytes) : *bytes;
    }
    return {};
}

Result<Photo> readPrimaryItem(const Source &source, const ItemTable &table)
{
    auto read = readPicture(source, table, table.primary);
    Photo photo;
    if (!read || !readMetadata(source, table, photo)) {
        return unreadable();
    }
    if (!read->turnsItself) {
        const unsigned orientation = exifOrientation(photo.exif);
        read->picture.upright.applyExifOrientation(orientation);
        if (read->picture.alpha != nullptr) {
            auto alpha = std::make_shared<Picture>(*read->picture.alpha);
            alpha->upright.applyExifOrientation(orientation);
            read->picture.alpha = std::move(alpha);
        }
    }
    photo.picture = std::move(read->picture);
    return photo;
}

} // namespace

Result<Photo> readPhoto(const Source &source)
{
    if (const auto kind = plainFileKind(source)) {
        return readPlainFile(source, *kind);
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
    auto picture = readFirstPictureOfTrack(source, boxes->movie);
    if (!picture) {
        return unreadable();
    }
    Photo photo;
    photo.picture = std::move(*picture);
    return photo;
}

} // namespace imageworker
