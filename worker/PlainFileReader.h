#pragma once

#include "Photo.h"
#include "Raster.h"
#include "Source.h"

namespace imageworker {

/// What the first bytes of a file say it is; nothing for anything but a JPEG or PNG.
std::optional<PlainFile::Kind> plainFileKind(const Source &source);

/// Size, orientation and metadata of a JPEG or PNG. Unreadable when its end is missing.
Result<Photo> readPlainFile(const Source &source, PlainFile::Kind kind);

/// The stored picture in sRGB. @p smallestSide allows a reduction while decoding, to no less than that on the
/// longer side; 0 asks for the full size.
Result<Raster> decodePlainFile(const Source &source, const PlainFile &file, int smallestSide);

} // namespace imageworker
