#pragma once

#include "Photo.h"
#include "TopLevelBoxes.h"

namespace imageworker {

/// Reads the first picture of an image sequence or video (ISO/IEC 14496-12, 8), for files without a primary
/// item. Takes the first track of pictures that is not auxiliary.
Result<Picture> readFirstPictureOfTrack(const LoadedBox &movie);

} // namespace imageworker
