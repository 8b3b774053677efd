#include "ItemTable.h"

#include "Boxes.h"

namespace imageworker {

namespace {

// Far above what photos hold. Keeps a short file from allocating gigabytes of records.
constexpr std::size_t MaximumItems = 65'536;

/// Primary item box, ISO/IEC 14496-12, 8.11.4.
bool readPrimaryItem(ByteReader reader, ItemTable &table)
{
    const FullBoxHeader header = readFullBoxHeader(reader);
    table.primary = header.version == 0 ? reader.u16() : reader.u32();
    return !reader.failed();
}

/// Item info entry, ISO/IEC 14496-12, 8.11.6.2. Versions before 2 do not occur in image files and are
/// skipped.
bool readItemInfoEntry(ByteReader reader, ItemTable &table)
{
    const FullBoxHeader header = readFullBoxHeader(reader);
    if (header.version < 2) {
        return true;
    }
    const std::uint32_t identifier = header.version == 2 ? reader.u16() : reader.u32();
    reader.u16(); // protection index
    Item &item = table.items[identifier];
    item.type = reader.u32();
    reader.text(); // name
    if (item.type == fourCharacters("mime")) {
        const auto contentType = reader.text();
        item.contentType.assign(contentType.begin(), contentType.end());
    }
    return !reader.failed() && table.items.size() <= MaximumItems;
}

/// Item information box, ISO/IEC 14496-12, 8.11.6.
bool readItemInformation(ByteReader reader, ItemTable &table)
{
    const FullBoxHeader header = readFullBoxHeader(reader);
    reader.number(header.version == 0 ? 2 : 4); // entry count; the boxes themselves say it again
    return !reader.failed() && forEachBox(reader, [&table](std::uint32_t type, ByteReader payload) {
        return type != fourCharacters("infe") || readItemInfoEntry(payload, table);
    });
}

/// Item location box, ISO/IEC 14496-12, 8.11.3.
bool readItemLocations(ByteReader reader, ItemTable &table)
{
    const FullBoxHeader header = readFullBoxHeader(reader);
    const std::uint16_t widths = reader.u16();
    const unsigned offsetWidth = widths >> 12;
    const unsigned lengthWidth = (widths >> 8) & 15;
    const unsigned baseWidth = (widths >> 4) & 15;
    const unsigned indexWidth = header.version == 0 ? 0 : widths & 15;
    if (offsetWidth > 8 || lengthWidth > 8 || baseWidth > 8 || indexWidth > 8 || header.version > 2) {
        return false;
    }
    const std::uint64_t count = reader.number(header.version < 2 ? 2 : 4);
    for (std::uint64_t entry = 0; entry < count && !reader.failed(); ++entry) {
        const auto identifier = static_cast<std::uint32_t>(reader.number(header.version < 2 ? 2 : 4));
        const unsigned method = header.version == 0 ? 0 : reader.u16() & 15;
        const std::uint16_t dataReference = reader.u16();
        const std::uint64_t base = reader.number(baseWidth);
        const unsigned extentCount = reader.u16();
        // Extents whose fields have no width take no bytes in the file. Several of them make no sense.
        if (method > 2 || dataReference != 0 || (extentCount > 1 && offsetWidth + lengthWidth == 0)) {
            return false;
        }
        Item &item = table.items[identifier];
        item.construction = static_cast<Construction>(method);
        for (unsigned index = 0; index < extentCount && !reader.failed(); ++index) {
            // Counted from 1; not written where there is only one.
            const std::uint64_t number = reader.number(indexWidth);
            const std::uint64_t offset = reader.number(offsetWidth);
            const std::uint64_t length = reader.number(lengthWidth);
            if (offset > UINT64_MAX - base || number > MaximumItems) {
                return false;
            }
            const std::uint32_t reference = number == 0 ? 0 : static_cast<std::uint32_t>(number - 1);
            item.extents.push_back({{base + offset, length}, reference});
        }
        if (table.items.size() > MaximumItems) {
            return false;
        }
    }
    return !reader.failed();
}

/// Item reference box, ISO/IEC 14496-12, 8.11.12.
bool readItemReferences(ByteReader reader, ItemTable &table)
{
    const FullBoxHeader header = readFullBoxHeader(reader);
    const unsigned width = header.version == 0 ? 2 : 4;
    return !reader.failed() && forEachBox(reader, [&table, width](std::uint32_t type, ByteReader payload) {
        const auto from = static_cast<std::uint32_t>(payload.number(width));
        ItemReference reference;
        reference.type = type;
        const unsigned count = payload.u16();
        for (unsigned index = 0; index < count && !payload.failed(); ++index) {
            reference.items.push_back(static_cast<std::uint32_t>(payload.number(width)));
        }
        table.items[from].references.push_back(std::move(reference));
        return !payload.failed() && table.items.size() <= MaximumItems;
    });
}

/// Item property association box, ISO/IEC 23008-12, 9.3.1.
bool readPropertyAssociations(ByteReader reader, ItemTable &table)
{
    const FullBoxHeader header = readFullBoxHeader(reader);
    const bool wideIndices = (header.flags & 1) != 0;
    const std::uint32_t count = reader.u32();
    for (std::uint32_t entry = 0; entry < count && !reader.failed(); ++entry) {
        const auto identifier = static_cast<std::uint32_t>(reader.number(header.version < 1 ? 2 : 4));
        const unsigned associations = reader.u8();
        Item &item = table.items[identifier];
        for (unsigned index = 0; index < associations && !reader.failed(); ++index) {
            const unsigned essential = wideIndices ? 0x8000 : 0x80;
            const unsigned association = wideIndices ? reader.u16() : reader.u8();
            const unsigned number = association & ~essential;
            if (number != 0) { // counted from 1; 0 stands for none
                item.properties.push_back({number - 1, (association & essential) != 0});
            }
        }
        if (table.items.size() > MaximumItems) {
            return false;
        }
    }
    return !reader.failed();
}

/// Item properties box, ISO/IEC 23008-12, 9.3.
bool readItemProperties(ByteReader reader, ItemTable &table)
{
    return forEachBox(reader, [&table](std::uint32_t type, ByteReader payload) {
        if (type == fourCharacters("ipma")) {
            return readPropertyAssociations(payload, table);
        }
        return type != fourCharacters("ipco") ||
               forEachBox(payload, [&table](std::uint32_t propertyType, ByteReader property) {
                   const auto bytes = property.rest();
                   table.properties.push_back(
                       {propertyType, std::make_shared<const Bytes>(bytes.begin(), bytes.end())});
                   return true;
               });
    });
}

bool readMetaChild(const LoadedBox &meta, std::uint32_t type, ByteReader payload, ItemTable &table)
{
    switch (type) {
    case fourCharacters("pitm"):
        return readPrimaryItem(payload, table);
    case fourCharacters("iinf"):
        return readItemInformation(payload, table);
    case fourCharacters("iloc"):
        return readItemLocations(payload, table);
    case fourCharacters("iref"):
        return readItemReferences(payload, table);
    case fourCharacters("iprp"):
        return readItemProperties(payload, table);
    case fourCharacters("idat"):
        table.itemData.offset =
            meta.position + static_cast<std::uint64_t>(payload.rest().data() - meta.payload.data());
        table.itemData.length = payload.remaining();
        return true;
    default:
        return true;
    }
}

} // namespace

const Item *ItemTable::find(std::uint32_t identifier) const
{
    const auto found = items.find(identifier);
    return found == items.end() ? nullptr : &found->second;
}

const ItemProperty *ItemTable::property(const Item &item, std::uint32_t type) const
{
    for (const auto &[index, isEssential] : item.properties) {
        if (index < properties.size() && properties[index].type == type) {
            return &properties[index];
        }
    }
    return nullptr;
}

std::vector<std::uint32_t> referencesOf(const Item &item, std::uint32_t type)
{
    for (const ItemReference &reference : item.references) {
        if (reference.type == type) {
            return reference.items;
        }
    }
    return {};
}

Result<ItemTable> readItemTable(const LoadedBox &meta)
{
    ByteReader reader(meta.payload);
    readFullBoxHeader(reader);
    ItemTable table;
    const bool sound = !reader.failed() && forEachBox(reader, [&](std::uint32_t type, ByteReader payload) {
        return readMetaChild(meta, type, payload, table);
    });
    if (!sound) {
        return unreadable();
    }
    return table;
}

} // namespace imageworker
