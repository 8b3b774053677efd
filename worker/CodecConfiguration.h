#pragma once

#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// What a decoder must know beforehand, from the codec's configuration record @p record of type @p recordType
/// ("hvcC", "av1C", "avcC", "jpgC"). Fills all of @p picture but its data.
bool readCodecConfiguration(std::uint32_t itemType, const ItemProperty *record, CodedPicture &picture);

/// The property that holds the configuration record of a coded item of type @p itemType; 0 for an item that
/// is not coded.
std::uint32_t configurationTypeOf(std::uint32_t itemType);

/// True when @p bytes are units that each say their length, all of it there and at least one unit; always
/// true for codecs without units. The pictures of half-transferred files often end in zeros, which no unit
/// can begin with.
bool hasSoundUnits(const CodedPicture &picture, std::span<const std::uint8_t> bytes);

} // namespace imageworker
