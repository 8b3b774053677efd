#pragma once

#include "ByteReader.h"
#include "ItemTable.h"
#include "Photo.h"

namespace imageworker {

/// A picture of @p size that is one coded picture.
Picture pictureOf(CodedPicture coded, PixelSize size);

/// "ispe", ISO/IEC 23008-12, 6.5.3; Unreadable when it is missing or asks for more than is accepted.
Result<PixelSize> spatialExtent(const ItemTable &table, const Item &item);

/// Reads all "colr" properties, ISO/IEC 14496-12, 12.1.5. An item may have code points and a profile.
ColourDescription colourOf(const ItemTable &table, const Item &item);

/// Crops by the payload of a "clap" box: width, height and offset of the centre, as fractions (ISO/IEC
/// 14496-12, 12.1.4). Unreadable when nothing is left.
Result<void> applyCleanAperture(ByteReader reader, Transformation &transformation);

/// Applies "irot", "imir" and "clap" in the order of the item's properties, ISO/IEC 23008-12, 6.5.10, 6.5.12
/// and ISO/IEC 14496-12, 12.1.4. Unreadable when a crop leaves nothing.
Result<void> applyTransformations(const ItemTable &table, const Item &item, Picture &picture);

/// Whether all essential properties of @p item are known. Other items must not be shown (ISO/IEC 23008-12,
/// 6.5.1).
bool isUnderstood(const ItemTable &table, const Item &item);

/// Whether the item has "irot", "imir" or "clap".
bool isTransformed(const ItemTable &table, const Item &item);

/// Whether "auxC" marks the item as an alpha plane, ISO/IEC 23008-12, 6.5.8.
bool isAlpha(const ItemTable &table, const Item &item);

/// Reads the payload of a "colr" box into @p colour. Unknown colour types change nothing.
void readColour(std::span<const std::uint8_t> payload, ColourDescription &colour);

} // namespace imageworker
