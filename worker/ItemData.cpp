#include "ItemData.h"

#include "Boxes.h"

#include <algorithm>

namespace imageworker {

namespace {

constexpr int MaximumDepth = 8;

/// @p part as a part of @p whole; a length of 0 asks for all that follows.
bool within(std::uint64_t wholeLength, Extent &part)
{
    if (part.offset > wholeLength) {
        return false;
    }
    if (part.length == 0) {
        part.length = wholeLength - part.offset;
    }
    return part.length > 0 && part.length <= wholeLength - part.offset;
}

/// Appends the bytes that @p part names within @p whole, which may lie in several places of the file.
void appendPart(const DataLocation &whole, Extent part, DataLocation &location)
{
    for (const Extent &extent : whole) {
        if (part.offset >= extent.length) {
            part.offset -= extent.length;
            continue;
        }
        const std::uint64_t length = std::min(part.length, extent.length - part.offset);
        if (length == 0) {
            return;
        }
        location.push_back({extent.offset + part.offset, length});
        part.offset = 0;
        part.length -= length;
    }
}

Result<DataLocation> locate(const Source &source, const ItemTable &table, const Item &item, int depth)
{
    DataLocation whole;
    switch (item.construction) {
    case Construction::FileOffset:
        whole = {{0, source.size()}};
        break;
    case Construction::ItemDataBox:
        whole = {table.itemData};
        break;
    case Construction::ItemOffset: {
        const auto references = referencesOf(item, fourCharacters("iloc"));
        const Item *other = references.empty() ? nullptr : table.find(references.front());
        if (other == nullptr || depth == MaximumDepth) {
            return unreadable();
        }
        auto location = locate(source, table, *other, depth + 1);
        if (!location) {
            return unreadable();
        }
        whole = std::move(*location);
        break;
    }
    }
    DataLocation location;
    for (Extent extent : item.extents) {
        if (!within(lengthOf(whole), extent)) {
            return unreadable();
        }
        appendPart(whole, extent, location);
    }
    // Extents may overlap, so a small file could otherwise ask for any amount.
    if (location.empty() || lengthOf(location) > source.size()) {
        return unreadable();
    }
    return location;
}

} // namespace

Result<DataLocation> locateItem(const Source &source, const ItemTable &table, const Item &item)
{
    return locate(source, table, item, 0);
}

std::uint64_t lengthOf(const DataLocation &location)
{
    std::uint64_t length = 0;
    for (const Extent &extent : location) {
        length += extent.length;
    }
    return length;
}

Result<Bytes> readAll(const Source &source, const DataLocation &location)
{
    Bytes bytes;
    for (const Extent &extent : location) {
        auto part = source.read(extent.offset, extent.length);
        if (!part) {
            return unreadable();
        }
        if (bytes.empty()) {
            bytes = std::move(*part);
        } else {
            bytes.insert(bytes.end(), part->begin(), part->end());
        }
    }
    return bytes;
}

} // namespace imageworker
