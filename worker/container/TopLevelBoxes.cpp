#include "TopLevelBoxes.h"

#include "Boxes.h"

#include <algorithm>

namespace imageworker {

namespace {

// A phone's photo takes some kilobytes, a long burst some hundred.
constexpr std::uint64_t MaximumDescription = std::uint64_t{64} << 20U;

/// Some cameras append a trailer that has no boxes. The type of a box has printable characters.
bool isBoxName(std::uint32_t type)
{
    for (int shift = 0; shift < 32; shift += 8) {
        const std::uint32_t character = (type >> shift) & 0xFF;
        if (character < 0x20 || character > 0x7E) {
            return false;
        }
    }
    return true;
}

Result<void> load(const Source &source, std::uint64_t position, std::uint64_t length, LoadedBox &box)
{
    if (length > MaximumDescription || !box.payload.empty()) {
        return unreadable();
    }
    auto payload = source.read(position, length);
    if (!payload) {
        return unreadable();
    }
    box = {std::move(*payload), position};
    return {};
}

} // namespace

Result<TopLevelBoxes> readTopLevelBoxes(const Source &source)
{
    constexpr std::uint64_t LongestHeader = 32;
    TopLevelBoxes boxes;
    std::uint64_t position = 0;
    while (position < source.size()) {
        const std::uint64_t left = source.size() - position;
        const auto start = source.read(position, std::min(left, LongestHeader));
        if (!start) {
            return unreadable();
        }
        ByteReader reader(*start);
        BoxHeader header;
        const bool sound = readBoxHeader(reader, header);
        if (position > 0 && !isBoxName(header.type)) {
            break;
        }
        if (!sound || header.totalSize > left) {
            return unreadable();
        }
        const std::uint64_t total = header.totalSize == 0 ? left : header.totalSize;
        if (header.type == fourCharacters("meta") || header.type == fourCharacters("moov")) {
            LoadedBox &box = header.type == fourCharacters("meta") ? boxes.meta : boxes.movie;
            if (!load(source, position + header.headerSize, total - header.headerSize, box)) {
                return unreadable();
            }
        }
        position += total;
    }
    return boxes;
}

} // namespace imageworker
