#pragma once

#include "Photo.h"

#include <span>

namespace imageworker {

/// Whether @p bytes, the data of @p picture, are one or more complete units. Units of HEVC and AVC state
/// their length, those of AV1 do so or reach to the end; JPEG has none, so any bytes will do. A
/// half-transferred file is often filled with zeros, so units that end with zeros are incomplete.
bool hasCompleteUnits(const CodedPicture &picture, std::span<const std::uint8_t> bytes);

} // namespace imageworker
