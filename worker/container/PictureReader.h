#pragma once

#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// Reads item @p identifier and the items it is derived from (ISO/IEC 23008-12, 6): coded pictures, grids,
/// identities, overlays and tone maps, with alpha, colour and transformations.
Result<Picture> readPicture(const Source &source, const ItemTable &table, std::uint32_t identifier);

} // namespace imageworker
