#include "HeifFile.h"

#include <algorithm>
#include <stdexcept>

namespace imageworker {

namespace {

Bytes bytesOf(std::string_view text)
{
    return {text.begin(), text.end()};
}

std::size_t numberAt(const Bytes &bytes, std::size_t position)
{
    std::size_t number = 0;
    for (std::size_t index = 0; index < 4; ++index) {
        number = number << 8 | bytes.at(position + index);
    }
    return number;
}

/// Where the payload of the first box of this type starts and ends, wherever it is.
std::pair<std::size_t, std::size_t> payloadOf(const Bytes &file, std::string_view type)
{
    const auto found = std::search(file.begin(), file.end(), type.begin(), type.end());
    if (found == file.end()) {
        throw std::runtime_error("no such box: " + std::string(type));
    }
    const auto position = static_cast<std::size_t>(found - file.begin());
    return {position + 4, position - 4 + numberAt(file, position - 4)};
}

Bytes part(const Bytes &bytes, std::size_t first, std::size_t last)
{
    return {bytes.begin() + static_cast<std::ptrdiff_t>(first),
            bytes.begin() + static_cast<std::ptrdiff_t>(last)};
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

Bytes joined(const std::vector<Bytes> &parts)
{
    Bytes bytes;
    for (const Bytes &part : parts) {
        bytes.insert(bytes.end(), part.begin(), part.end());
    }
    return bytes;
}

Bytes box(std::string_view type, const Bytes &payload)
{
    constexpr std::size_t Header = 8;
    return joined({bigEndian(Header + payload.size(), 4), bytesOf(type), payload});
}

Bytes fullBox(std::string_view type, unsigned version, const Bytes &payload)
{
    return box(type, joined({bigEndian(version, 1), bigEndian(0, 3), payload}));
}

HeifFile::Property spatialExtents(unsigned width, unsigned height)
{
    return {"ispe", joined({bigEndian(0, 4), bigEndian(width, 4), bigEndian(height, 4)})};
}

HeifFile::Property opacityRole()
{
    return {"auxC", joined({Bytes(4), bytesOf("urn:mpeg:mpegB:cicp:systems:auxiliary:alpha"), {0}})};
}

HeifFile::Property codePoints(unsigned primaries, unsigned transfer, unsigned matrix, bool fullRange)
{
    return {"colr", joined({bytesOf("nclx"), bigEndian(primaries, 2), bigEndian(transfer, 2),
                            bigEndian(matrix, 2), bigEndian(fullRange ? 0x80 : 0, 1)})};
}

CodedItem codedItemOf(const Bytes &file)
{
    CodedItem item;
    const auto [first, last] = payloadOf(file, "ipco");
    for (std::size_t position = first; position < last; position += numberAt(file, position)) {
        const Bytes type = part(file, position + 4, position + 8);
        item.properties.push_back({std::string(type.begin(), type.end()),
                                   part(file, position + 8, position + numberAt(file, position))});
    }
    const auto [start, end] = payloadOf(file, "mdat");
    item.data = part(file, start, end);
    return item;
}

unsigned HeifFile::add(std::string_view type, const Bytes &data, Properties properties, Place place)
{
    const Bytes foreign(5, 0xAA);
    switch (place) {
    case Place::File: {
        const std::size_t half = data.size() / 2;
        const std::size_t start = m_mediaData.size();
        m_mediaData = joined({m_mediaData, part(data, half, data.size()), foreign, part(data, 0, half)});
        const std::size_t second = data.size() - half;
        return addItem(type, std::move(properties), place,
                       {{start + second + foreign.size(), half}, {start, second}});
    }
    case Place::ItemData: {
        const std::size_t start = m_itemData.size();
        m_itemData = joined({m_itemData, data});
        return addItem(type, std::move(properties), place, {{start, data.size()}});
    }
    case Place::Item: {
        const std::size_t half = data.size() / 2;
        const unsigned second = add("mime", joined({foreign, part(data, half, data.size()), foreign}), {});
        const unsigned first = add("mime", joined({foreign, part(data, 0, half)}), {});
        const unsigned item = addItem(type, std::move(properties), place,
                                      {{foreign.size(), half, 2}, {foreign.size(), data.size() - half, 1}});
        refer(item, "iloc", {second, first});
        return item;
    }
    }
    throw std::logic_error("no such place");
}

void HeifFile::refer(unsigned from, std::string_view kind, const std::vector<unsigned> &to)
{
    m_references.push_back({std::string(kind), from, to});
}

unsigned HeifFile::addItem(std::string_view type, Properties properties, Place place,
                           std::vector<Extent> extents)
{
    m_items.push_back({std::string(type), std::move(properties), place, std::move(extents)});
    return static_cast<unsigned>(m_items.size());
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
        infos = joined({infos, fullBox("infe", 2,
                                       joined({bigEndian(number, 2), bigEndian(0, 2), bytesOf(item.type),
                                               Bytes(item.type == "mime" ? 2 : 1, 0)}))});
        locations = joined({locations, bigEndian(number, 2), bigEndian(static_cast<unsigned>(item.place), 2),
                            bigEndian(0, 2), bigEndian(item.extents.size(), 2)});
        for (const Extent &extent : item.extents) {
            const std::size_t base = item.place == Place::File ? mediaStart : 0;
            locations = joined({locations, hasReferences ? bigEndian(extent.reference, 4) : Bytes(),
                                bigEndian(base + extent.offset, 4), bigEndian(extent.length, 4)});
        }
        associations = joined({associations, bigEndian(number, 2), bigEndian(item.properties.size(), 1)});
        for (const Property &property : item.properties) {
            properties = joined({properties, box(property.type, property.payload)});
            associations = joined({associations, bigEndian(++propertyNumber, 1)});
        }
    }
    Bytes references;
    for (const Reference &reference : m_references) {
        Bytes content = joined({bigEndian(reference.from, 2), bigEndian(reference.to.size(), 2)});
        for (const unsigned item : reference.to) {
            content = joined({content, bigEndian(item, 2)});
        }
        references = joined({references, box(reference.kind, content)});
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
