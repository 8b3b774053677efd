#pragma once

#include "Photo.h"
#include "Source.h"

namespace imageworker {

/// Kind of @p source by its first bytes; nothing when it is neither a JPEG nor a PNG.
std::optional<JpegOrPng::Kind> jpegOrPngKind(const Source &source);

/// Reads size, orientation and metadata. Unreadable when the end of the file is missing.
Result<Photo> readJpegOrPng(const Source &source, JpegOrPng::Kind kind);

} // namespace imageworker
