#pragma once

#include "HeifFile.h"

namespace imageworker {

/// A track whose one sample is a coded picture (ISO/IEC 23008-12, 7). Picture properties that a sample's
/// description has, too, are written there.
struct MadeTrack
{
    CodedItem picture;
    PixelSize size;
    std::string handler = "pict";
    bool isAuxiliary = false;
    unsigned clockwiseQuarters = 0; ///< by which the header turns it
    bool hasLongOffsets = false;
    bool hasCommonSize = false; ///< of all samples, instead of a list
};

/// An image sequence without items.
Bytes fileOfTracks(const std::vector<MadeTrack> &tracks);

} // namespace imageworker
