#pragma once

#include "Photo.h"
#include "Source.h"

namespace imageworker {

/// Finds the photo in a file: the primary item of a HEIF file (ISO/IEC 23008-12), the first picture of a
/// sequence, or the whole file where it is a JPEG or PNG. Decodes nothing, but makes sure that everything to
/// be decoded is there: a file that has been cut is Unreadable, and so is one with a tile, an extent or a NAL
/// unit that cannot be whole.
Result<Photo> readPhoto(const Source &source);

} // namespace imageworker
