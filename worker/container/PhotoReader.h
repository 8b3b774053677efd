#pragma once

#include "Photo.h"
#include "Source.h"

namespace imageworker {

/// Finds the photo in a file: the primary item of a HEIF file (ISO/IEC 23008-12), the first picture of a
/// sequence, or the whole file where it is a JPEG or PNG. Decodes nothing, but checks that all data to decode
/// are there. Unreadable when the file is truncated, or a tile or an extent is missing.
Result<Photo> readPhoto(const Source &source);

} // namespace imageworker
