#pragma once

#include "Photo.h"
#include "TopLevelBoxes.h"

namespace imageworker {

/// The first picture of an image sequence or video (ISO/IEC 14496-12, 8), for files that have no primary
/// item. Takes the first track of pictures that is not auxiliary to another.
Result<Picture> readFirstPictureOfTrack(const LoadedBox &movie);

} // namespace imageworker
