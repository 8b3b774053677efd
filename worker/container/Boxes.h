#pragma once

#include "ByteReader.h"

#include <functional>

namespace imageworker {

/// Start of a box (ISO/IEC 14496-12, 4.2).
struct BoxHeader
{
    std::uint32_t type = 0;
    unsigned headerSize = 0;     ///< bytes from the box's start to its payload
    std::uint64_t totalSize = 0; ///< with the header; 0 for a box that reaches to the end of the file
};

/// Start of a full box (ISO/IEC 14496-12, 4.2.2).
struct FullBoxHeader
{
    unsigned version = 0;
    std::uint32_t flags = 0;
};

/// False when bytes are missing, or the box claims to be smaller than its header.
bool readBoxHeader(ByteReader &reader, BoxHeader &header);

FullBoxHeader readFullBoxHeader(ByteReader &reader);

/// Calls @p visit with the type and payload of each child box. Stops with false at a malformed child, or when
/// @p visit gives false.
bool forEachBox(ByteReader reader, const std::function<bool(std::uint32_t type, ByteReader payload)> &visit);

} // namespace imageworker
