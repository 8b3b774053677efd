#pragma once

#include "Photo.h"
#include "Source.h"

namespace imageworker {

/// What the first bytes of a file say it is; nothing for anything but a JPEG or PNG.
std::optional<PlainFile::Kind> plainFileKind(const Source &source);

/// Size, orientation and metadata of a JPEG or PNG. Unreadable when its end is missing.
Result<Photo> readPlainFile(const Source &source, PlainFile::Kind kind);

} // namespace imageworker
