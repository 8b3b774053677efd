#pragma once

#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// Reads @p record, the configuration record ("hvcC", "av1C", "avcC", "jpgC"; null when there is none) of an
/// item of type @p itemType. Fills all fields of @p picture except its data. False for a malformed record and
/// for other item types.
bool readCodecConfiguration(std::uint32_t itemType, const ItemProperty *record, CodedPicture &picture);

/// The property that holds the configuration record of a coded item of type @p itemType; 0 for an item that
/// is not coded.
std::uint32_t configurationTypeOf(std::uint32_t itemType);

} // namespace imageworker
