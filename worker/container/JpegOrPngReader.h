#pragma once

#include "Photo.h"
#include "Source.h"

namespace imageworker {

/// What the first bytes of a file say it is; nothing for anything but a JPEG or PNG.
std::optional<JpegOrPng::Kind> jpegOrPngKind(const Source &source);

/// Size, orientation and metadata of a JPEG or PNG. Unreadable when its end is missing.
Result<Photo> readJpegOrPng(const Source &source, JpegOrPng::Kind kind);

} // namespace imageworker
