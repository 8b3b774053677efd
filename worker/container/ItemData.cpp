#include "ItemData.h"

#include "Boxes.h"

#include <algorithm>

namespace imageworker {

namespace {

// Depth of items within items, and extents of an item. Both multiply; no writer uses more.
constexpr int MaximumDepth = 2;
constexpr std::size_t MaximumPieces = 256;

/// Whether @p part lies within @p wholeLength bytes. A length of 0 is replaced by that of all that follows.
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

/// Appends the extents of the file that @p part of @p whole covers.
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

Result<DataLocation> locate(const Source &source, const ItemTable &table, const Item &item, int depth);

/// The data in which @p extent of @p item lies.
Result<DataLocation> pointedInto(const Source &source, const ItemTable &table, const Item &item,
                                 const ItemExtent &extent, int depth)
{
    switch (item.construction) {
    case Construction::FileOffset:
        return DataLocation{{0, source.size()}};
    case Construction::ItemDataBox:
        return DataLocation{table.itemData};
    case Construction::ItemOffset:
        break;
    }
    const auto references = referencesOf(item, fourCharacters("iloc"));
    const Item *other =
        extent.reference < references.size() ? table.find(references[extent.reference]) : nullptr;
    if (other == nullptr || depth == MaximumDepth) {
        return unreadable();
    }
    return locate(source, table, *other, depth + 1);
}

Result<DataLocation> locate(const Source &source, const ItemTable &table, const Item &item, int depth)
{
    DataLocation location;
    for (ItemExtent extent : item.extents) {
        const auto whole = pointedInto(source, table, item, extent, depth);
        if (!whole || !within(lengthOf(*whole), extent)) {
            return unreadable();
        }
        appendPart(*whole, extent, location);
        if (location.size() > MaximumPieces) {
            return unreadable();
        }
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

} // namespace imageworker
