#include "Boxes.h"

namespace imageworker {

bool readBoxHeader(ByteReader &reader, BoxHeader &header)
{
    header.headerSize = 8;
    header.totalSize = reader.u32();
    header.type = reader.u32();
    if (header.totalSize == 1) {
        header.totalSize = reader.u64();
        header.headerSize += 8;
    }
    if (header.type == fourCharacters("uuid")) {
        reader.take(16);
        header.headerSize += 16;
    }
    return !reader.failed() && (header.totalSize == 0 || header.totalSize >= header.headerSize);
}

FullBoxHeader readFullBoxHeader(ByteReader &reader)
{
    const std::uint32_t word = reader.u32();
    return {word >> 24, word & 0xFFFFFF};
}

bool forEachBox(ByteReader reader, const std::function<bool(std::uint32_t, ByteReader)> &visit)
{
    while (!reader.atEnd()) {
        BoxHeader header;
        if (!readBoxHeader(reader, header)) {
            return false;
        }
        const std::uint64_t payload =
            header.totalSize == 0 ? reader.remaining() : header.totalSize - header.headerSize;
        const auto bytes = reader.take(payload);
        if (reader.failed() || !visit(header.type, ByteReader(bytes))) {
            return false;
        }
    }
    return true;
}

} // namespace imageworker
