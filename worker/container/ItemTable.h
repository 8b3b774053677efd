#pragma once

#include "TopLevelBoxes.h"

#include <map>
#include <string>

namespace imageworker {

/// Extent of an item (ISO/IEC 14496-12, 8.11.3). A length of 0 means up to the end of the data it lies in.
struct ItemExtent : Extent
{
    std::uint32_t reference = 0; ///< index of the "iloc" reference of the item that it points into
};

enum class Construction { FileOffset, ItemDataBox, ItemOffset };

/// A property box of an item (ISO/IEC 23008-12, 9.3), unread.
struct ItemProperty
{
    std::uint32_t type = 0;
    SharedBytes payload;
};

/// A property as one item has it (ISO/IEC 23008-12, 9.3.1).
struct PropertyAssociation
{
    std::uint32_t index = 0; ///< into ItemTable::properties
    bool isEssential = false;
};

struct ItemReference
{
    std::uint32_t type = 0;
    std::vector<std::uint32_t> items; ///< in the order written, which is the order of tiles in a grid
};

struct Item
{
    std::uint32_t type = 0;
    std::string contentType; ///< of a "mime" item
    Construction construction = Construction::FileOffset;
    std::vector<ItemExtent> extents;
    std::vector<PropertyAssociation> properties; ///< in the order they apply
    std::vector<ItemReference> references;       ///< from this item to others
};

/// Items and properties of a "meta" box.
struct ItemTable
{
    std::uint32_t primary = 0; ///< 0 when there is none
    std::map<std::uint32_t, Item> items;
    std::vector<ItemProperty> properties;
    Extent itemData; ///< payload of the "idat" box, as a part of the file

    const Item *find(std::uint32_t identifier) const;

    /// First property of @p type that @p item has; null when it has none.
    const ItemProperty *property(const Item &item, std::uint32_t type) const;
};

/// Items that @p item refers to by @p type; empty when it refers to none.
std::vector<std::uint32_t> referencesOf(const Item &item, std::uint32_t type);

/// Reads a "meta" box. Unreadable when one of its boxes is malformed.
Result<ItemTable> readItemTable(const LoadedBox &meta);

} // namespace imageworker
