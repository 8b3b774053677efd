#pragma once

#include "Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace imageworker {

/// A HEIF file put together box by box, as phones write them and as odd programs do (ISO/IEC 14496-12 and
/// 23008-12).
class HeifFile
{
public:
    struct Property
    {
        std::string type;
        Bytes payload; ///< all that follows the box's type
    };
    using Properties = std::vector<Property>;

    /// Where the bytes of an item lie.
    enum class Place {
        File,     ///< in two pieces of the file, the second of them first
        ItemData, ///< in the box for small data
        Item,     ///< in two pieces within two other items, behind bytes that are not its own
    };

    /// Gives the number of the item.
    unsigned add(std::string_view type, const Bytes &data, Properties properties, Place place = Place::File);
    /// As referring items name others: their inputs ("dimg"), what they accompany ("auxl").
    void refer(unsigned from, std::string_view kind, const std::vector<unsigned> &to);

    Bytes bytes(unsigned primary) const;

private:
    struct Extent
    {
        std::size_t offset = 0;
        std::size_t length = 0;
        unsigned reference = 1; ///< number of the other item it lies in, for Place::Item
    };
    struct Item
    {
        std::string type;
        Properties properties;
        Place place = Place::File;
        std::vector<Extent> extents; ///< within the media data, the item data or the other item
    };
    struct Reference
    {
        std::string kind;
        unsigned from = 0;
        std::vector<unsigned> to;
    };

    unsigned addItem(std::string_view type, Properties properties, Place place, std::vector<Extent> extents);
    Bytes meta(unsigned primary, std::size_t mediaStart) const;

    std::vector<Item> m_items; ///< number 1 first
    std::vector<Reference> m_references;
    Bytes m_mediaData;
    Bytes m_itemData;
};

/// What makes a coded picture of another file an item of this one.
struct CodedItem
{
    HeifFile::Properties properties;
    Bytes data;
};

/// The one coded picture of a file as the encoder of makePhoto() writes it for sides that are multiples
/// of 64.
CodedItem codedItemOf(const Bytes &file);

/// @p value as @p width bytes, the highest first.
Bytes bigEndian(std::uint64_t value, unsigned width);
Bytes joined(const std::vector<Bytes> &parts);

Bytes box(std::string_view type, const Bytes &payload);
Bytes fullBox(std::string_view type, unsigned version, const Bytes &payload);

HeifFile::Property spatialExtents(unsigned width, unsigned height);
/// What tells an item that gives the opacity of another from other auxiliary ones.
HeifFile::Property opacityRole();
/// Colour as code points of ITU-T H.273.
HeifFile::Property codePoints(unsigned primaries, unsigned transfer, unsigned matrix, bool fullRange);

} // namespace imageworker
