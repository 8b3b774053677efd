#pragma once

#include "HeifFile.h"

namespace imageworker {

/// A track whose one sample is a coded picture (ISO/IEC 23008-12, 7).
struct MadeTrack
{
    enum class Offsets { Short, Long };
    enum class Sizes { Common, Listed };

    CodedItem picture; ///< its first property is the decoder's configuration
    std::string codingName = "hvc1";
    unsigned width = 0;
    unsigned height = 0;
    std::string handler = "pict";
    bool isAuxiliary = false;
    unsigned clockwiseQuarters = 0; ///< by which the header turns it
    Offsets offsets = Offsets::Short;
    Sizes sizes = Sizes::Listed;
};

/// An image sequence without items. Picture properties that a sample's description has, too, are written
/// there.
Bytes fileOfTracks(const std::vector<MadeTrack> &tracks);

} // namespace imageworker
