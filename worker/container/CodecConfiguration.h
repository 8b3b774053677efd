#pragma once

#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// What a decoder must know beforehand, from the configuration record @p record ("hvcC", "av1C", "avcC",
/// "jpgC"; null where there is none) of an item of type @p itemType. Fills all of @p picture but its data.
bool readCodecConfiguration(std::uint32_t itemType, const ItemProperty *record, CodedPicture &picture);

/// The property that holds the configuration record of a coded item of type @p itemType; 0 for an item that
/// is not coded.
std::uint32_t configurationTypeOf(std::uint32_t itemType);

} // namespace imageworker
