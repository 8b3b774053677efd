#pragma once

#include "Photo.h"

#include <span>

namespace imageworker {

/// Whether @p bytes, the data of @p picture, are one or more complete units: NAL units of HEVC and AVC, open
/// bitstream units of AV1. A half-transferred file is often filled with zeros, so units that end with zeros
/// are incomplete. JPEG has no units: any bytes will do.
bool hasCompleteUnits(const CodedPicture &picture, std::span<const std::uint8_t> bytes);

} // namespace imageworker
