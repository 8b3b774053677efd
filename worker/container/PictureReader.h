#pragma once

#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// Whether the picture's own turning properties asked for anything; Exif's orientation counts only if they
/// did not.
struct ReadPicture
{
    Picture picture;
    bool turnsItself = false;
};

/// Reads the picture of item @p identifier with all that it is derived from (ISO/IEC 23008-12, 6): coded
/// pictures, grids, identities and overlays, its alpha, colour and the properties that turn and crop it.
Result<ReadPicture> readPicture(const Source &source, const ItemTable &table, std::uint32_t identifier);

} // namespace imageworker
