#pragma once

#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// Where the bytes of @p item lie in the file, whichever of the three ways it is constructed (ISO/IEC
/// 14496-12, 8.11.3). Unreadable when any of them would lie outside, or the item has none.
Result<DataLocation> locateItem(const Source &source, const ItemTable &table, const Item &item);

} // namespace imageworker
