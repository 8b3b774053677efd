#include "HeifFile.h"

#include <algorithm>
#include <stdexcept>

namespace imageworker {

namespace {

/// The payload of the first box of this type, wherever it is.
Bytes payloadOf(const Bytes &file, std::string_view type)
{
    const auto found = std::search(file.begin(), file.end(), type.begin(), type.end());
    if (found == file.end()) {
        throw std::runtime_error("no such box: " + std::string(type));
    }
    const auto position = static_cast<std::size_t>(found - file.begin());
    return part(file, position + 4, position - 4 + numberAt(file, position - 4));
}

void append(Bytes &bytes, const std::vector<Bytes> &parts)
{
    for (const Bytes &part : parts) {
        bytes.insert(bytes.end(), part.begin(), part.end());
    }
}

} // namespace

Bytes bigEndian(std::uint64_t value, unsigned width)
{
    Bytes bytes(width);
    for (unsigned index = width; index > 0; --index, value >>= 8) {
        bytes[index - 1] = static_cast<std::uint8_t>(value);
    }
    return bytes;
}

Bytes numbers(unsigned width, const std::vector<std::int64_t> &values)
{
    Bytes bytes;
    for (const std::int64_t value : values) {
        append(bytes, {bigEndian(static_cast<std::uint64_t>(value), width)});
    }
    return bytes;
}

Bytes bytesOf(std::string_view text)
{
    return {text.begin(), text.end()};
}

Bytes joined(const std::vector<Bytes> &parts)
{
    Bytes bytes;
    append(bytes, parts);
    return bytes;
}

Bytes part(const Bytes &bytes, std::size_t first, std::size_t last)
{
    return {bytes.begin() + static_cast<std::ptrdiff_t>(first),
            bytes.begin() + static_cast<std::ptrdiff_t>(last)};
}

std::size_t numberAt(const Bytes &bytes, std::size_t position)
{
    std::size_t number = 0;
    for (std::size_t index = 0; index < 4; ++index) {
        number = number << 8 | bytes.at(position + index);
    }
    return number;
}

Bytes box(std::string_view type, const Bytes &payload)
{
    constexpr std::size_t Header = 8;
    return joined({bigEndian(Header + payload.size(), 4), bytesOf(type), payload});
}

Bytes fullBox(std::string_view type, unsigned version, const Bytes &payload)
{
    return box(type, joined({bigEndian(version, 1), Bytes(3), payload}));
}

HeifFile::Property spatialExtents(int width, int height)
{
    return {"ispe", numbers(4, {0, width, height})};
}

HeifFile::Property opacityRole()
{
    return {"auxC", joined({Bytes(4), bytesOf("urn:mpeg:mpegB:cicp:systems:auxiliary:alpha"), {0}})};
}

HeifFile::Property codePoints(unsigned primaries, unsigned transfer, unsigned matrix, bool fullRange)
{
    return {"colr", joined({bytesOf("nclx"), numbers(2, {primaries, transfer, matrix}),
                            bigEndian(fullRange ? 0x80 : 0, 1)})};
}

HeifFile::Property rotation(unsigned quarters)
{
    return {"irot", bigEndian(quarters, 1)};
}

HeifFile::Property mirror(unsigned axis)
{
    return {"imir", bigEndian(axis, 1)};
}

HeifFile::Property crop(PixelSize size, int halvesRight, int halvesDown)
{
    return {"clap", numbers(4, {size.width, 1, size.height, 1, halvesRight, 2, halvesDown, 2})};
}

CodedItem codedItemOf(const Bytes &file)
{
    CodedItem item;
    const Bytes properties = payloadOf(file, "ipco");
    for (std::size_t start = 0, end = 0; start < properties.size(); start = end) {
        end = start + numberAt(properties, start);
        const Bytes type = part(properties, start + 4, start + 8);
        item.properties.push_back({{type.begin(), type.end()}, part(properties, start + 8, end)});
    }
    std::stable_partition(item.properties.begin(), item.properties.end(),
                          [](const auto &property) { return property.type == "hvcC"; });
    item.data = payloadOf(file, "mdat");
    return item;
}

bool contains(const Bytes &bytes, const Bytes &sought)
{
    return std::search(bytes.begin(), bytes.end(), sought.begin(), sought.end()) != bytes.end();
}

Bytes photoOf(const CodedItem &item, const HeifFile::Properties &more)
{
    HeifFile file;
    return file.bytes(file.add(item, more));
}

unsigned HeifFile::add(const CodedItem &item, const Properties &more, Place place)
{
    Properties properties = item.properties;
    properties.insert(properties.end(), more.begin(), more.end());
    return add(item.type, item.data, std::move(properties), place);
}

unsigned HeifFile::addGrid(unsigned rows, unsigned columns, PixelSize canvas,
                           const std::vector<unsigned> &tiles, const Properties &more, Place place)
{
    const Bytes description =
        joined({numbers(1, {0, 0, rows - 1, columns - 1}), numbers(2, {canvas.width, canvas.height})});
    const unsigned grid =
        add({"grid", {spatialExtents(canvas.width, canvas.height)}, description}, more, place);
    refer(grid, "dimg", tiles);
    return grid;
}

unsigned HeifFile::add(std::string_view type, const Bytes &data, Properties properties, Place place)
{
    const Bytes foreign(5, 0xAA);
    const std::size_t half = data.size() / 2;
    const Bytes first = part(data, 0, half);
    const Bytes second = part(data, half, data.size());
    std::vector<Extent> extents;
    std::vector<unsigned> others;
    switch (place) {
    case Place::File:
        extents = {{m_mediaData.size() + second.size() + foreign.size(), half},
                   {m_mediaData.size(), second.size()}};
        append(m_mediaData, {second, foreign, first});
        break;
    case Place::ItemData:
        extents = {{m_itemData.size(), data.size()}};
        append(m_itemData, {data});
        break;
    case Place::Item:
        others = {add("mime", joined({foreign, second, foreign}), {}),
                  add("mime", joined({foreign, first}), {})};
        extents = {{foreign.size(), half, 2}, {foreign.size(), second.size(), 1}};
        break;
    }
    m_items.push_back({std::string(type), std::move(properties), place, std::move(extents)});
    const auto number = static_cast<unsigned>(m_items.size());
    if (!others.empty()) {
        refer(number, "iloc", others);
    }
    return number;
}

void HeifFile::refer(unsigned from, std::string_view kind, const std::vector<unsigned> &to)
{
    m_references.push_back({std::string(kind), from, to});
}

Bytes HeifFile::meta(unsigned primary, std::size_t mediaStart) const
{
    Bytes infos = bigEndian(m_items.size(), 2);
    // Numbers of other items only where there are any: the independent decoder cannot read them.
    const bool hasReferences =
        std::ranges::any_of(m_items, [](const Item &item) { return item.place == Place::Item; });
    Bytes locations = joined({bigEndian(hasReferences ? 0x4404 : 0x4400, 2), bigEndian(m_items.size(), 2)});
    Bytes properties;
    Bytes associations = bigEndian(m_items.size(), 4);
    unsigned number = 0;
    unsigned propertyNumber = 0;
    for (const Item &item : m_items) {
        ++number;
        const Bytes noTexts(item.type == "mime" ? 2 : 1);
        append(infos, {fullBox("infe", 2, joined({numbers(2, {number, 0}), bytesOf(item.type), noTexts}))});
        append(locations,
               {numbers(2, {number, static_cast<int>(item.place), 0}), bigEndian(item.extents.size(), 2)});
        for (const Extent &extent : item.extents) {
            const std::size_t base = item.place == Place::File ? mediaStart : 0;
            append(locations, {hasReferences ? bigEndian(extent.reference, 4) : Bytes(),
                               bigEndian(base + extent.offset, 4), bigEndian(extent.length, 4)});
        }
        append(associations, {bigEndian(number, 2), bigEndian(item.properties.size(), 1)});
        for (const Property &property : item.properties) {
            append(properties, {box(property.type, property.payload)});
            append(associations, {bigEndian(++propertyNumber | (property.isEssential ? 0x80U : 0), 1)});
        }
    }
    Bytes references;
    for (const Reference &reference : m_references) {
        const Bytes to = numbers(2, {reference.to.begin(), reference.to.end()});
        append(references, {box(reference.kind, joined({bigEndian(reference.from, 2),
                                                        bigEndian(reference.to.size(), 2), to}))});
    }
    return fullBox("meta", 0,
                   joined({fullBox("hdlr", 0, joined({Bytes(4), bytesOf("pict"), Bytes(13)})),
                           fullBox("pitm", 0, bigEndian(primary, 2)), fullBox("iinf", 0, infos),
                           fullBox("iloc", 1, locations), fullBox("iref", 0, references),
                           box("iprp", joined({box("ipco", properties), fullBox("ipma", 0, associations)})),
                           box("idat", m_itemData)}));
}

Bytes HeifFile::bytes(unsigned primary) const
{
    const Bytes type = box("ftyp", joined({bytesOf("heic"), Bytes(4), bytesOf("mif1heic")}));
    constexpr std::size_t HeaderOfMediaData = 8;
    const std::size_t mediaStart = type.size() + meta(primary, 0).size() + HeaderOfMediaData;
    return joined({type, meta(primary, mediaStart), box("mdat", m_mediaData)});
}

} // namespace imageworker
