#pragma once

#include "ByteReader.h"
#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// A picture of @p size that is one coded picture.
Picture pictureOf(CodedPicture coded, PixelSize size);

/// "ispe", ISO/IEC 23008-12, 6.5.3; Unreadable when it is missing or asks for more than is accepted.
Result<PixelSize> spatialExtent(const ItemTable &table, const Item &item);

/// All "colr" properties together, ISO/IEC 14496-12, 12.1.5: an item may have code points and a profile.
ColourDescription colourOf(const ItemTable &table, const Item &item);

/// A "clap" box's payload: a size and the distance of its centre from the picture's, all as fractions
/// (ISO/IEC 14496-12, 12.1.4). Unreadable when it leaves nothing.
Result<void> applyCleanAperture(ByteReader reader, Upright &upright);

/// Turns and crops @p picture by "irot", "imir" and "clap" in the order of the item's properties, ISO/IEC
/// 23008-12, 6.5.10, 6.5.12 and ISO/IEC 14496-12, 12.1.4. Unreadable when a crop leaves nothing.
Result<void> applyTransformations(const ItemTable &table, const Item &item, Picture &picture);

/// Whether the item has any of these.
bool isTransformed(const ItemTable &table, const Item &item);

/// Whether "auxC" says that the item is an alpha plane, ISO/IEC 23008-12, 6.5.8.
bool isAlpha(const ItemTable &table, const Item &item);

/// One "colr" box's payload into @p colour; kinds that are not understood change nothing.
void readColour(std::span<const std::uint8_t> payload, ColourDescription &colour);

} // namespace imageworker
