#pragma once

#include "Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace imageworker {

struct CodedItem;

/// A HEIF file put together box by box, as phones write them and as odd programs do (ISO/IEC 14496-12 and
/// 23008-12).
class HeifFile
{
public:
    struct Property
    {
        std::string type;
        Bytes payload; ///< all that follows the box's type
        bool isEssential = false;
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
    unsigned add(const CodedItem &item, const Properties &more = {}, Place place = Place::File);
    /// Adds an item of type "grid".
    unsigned addGrid(unsigned rows, unsigned columns, PixelSize canvas, const std::vector<unsigned> &tiles,
                     const Properties &more = {}, Place place = Place::ItemData);
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

    Bytes meta(unsigned primary, std::size_t mediaStart) const;

    std::vector<Item> m_items; ///< number 1 first
    std::vector<Reference> m_references;
    Bytes m_mediaData;
    Bytes m_itemData;
};

/// A coded picture as an item of a file.
struct CodedItem
{
    std::string type = "hvc1";
    HeifFile::Properties properties; ///< the decoder configuration record first
    Bytes data;
};

/// The one coded picture of a file as makePhoto() writes it in HEVC for sides that are multiples of 64.
CodedItem codedItemOf(const Bytes &file);

/// A file that holds only @p item, with @p more properties.
Bytes photoOf(const CodedItem &item, const HeifFile::Properties &more = {});

/// @p value as @p width bytes, the highest first.
Bytes bigEndian(std::uint64_t value, unsigned width);
/// All of @p values, each as @p width bytes.
Bytes numbers(unsigned width, const std::vector<std::int64_t> &values);
Bytes bytesOf(std::string_view text);
Bytes joined(const std::vector<Bytes> &parts);
/// Bytes from @p first up to, without, @p last.
Bytes part(const Bytes &bytes, std::size_t first, std::size_t last);
bool contains(const Bytes &bytes, const Bytes &sought);
/// The number of four bytes there.
std::size_t numberAt(const Bytes &bytes, std::size_t position);

Bytes box(std::string_view type, const Bytes &payload);
Bytes fullBox(std::string_view type, unsigned version, const Bytes &payload);

HeifFile::Property spatialExtents(int width, int height);
/// What tells an item that gives the opacity of another from other auxiliary ones.
HeifFile::Property opacityRole();
/// Colour as code points of ITU-T H.273.
HeifFile::Property codePoints(unsigned primaries, unsigned transfer, unsigned matrix, bool fullRange);
/// Turns by @p quarters, anticlockwise.
HeifFile::Property rotation(unsigned quarters);
/// Exchanges top and bottom (0) or left and right (1).
HeifFile::Property mirror(unsigned axis);
/// A clean aperture of @p size, its centre off the picture's by halves of a pixel.
HeifFile::Property crop(PixelSize size, int halvesRight, int halvesDown);

} // namespace imageworker
