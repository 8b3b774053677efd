#pragma once

#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// Reads the picture of item @p identifier with all that it is derived from (ISO/IEC 23008-12, 6): coded
/// pictures, grids, identities and overlays, its alpha, colour and the properties that turn and crop it.
Result<Picture> readPicture(const Source &source, const ItemTable &table, std::uint32_t identifier);

} // namespace imageworker
