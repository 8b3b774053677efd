#pragma once

#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// Location of the data of @p item in the file, for all three construction methods (ISO/IEC 14496-12,
/// 8.11.3). Unreadable when a part would lie outside the file, or there are no data.
Result<DataLocation> locateItem(const Source &source, const ItemTable &table, const Item &item);

} // namespace imageworker
