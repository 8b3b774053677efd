#pragma once

#include "OutputFormat.h"
#include "Photo.h"
#include "Source.h"

namespace imageworker {

/// Decodes @p photo and writes it, upright and in sRGB, with its metadata, to the empty file @p output. @p
/// jpegQuality is a fraction. Damage within the pictures shows only here: Unreadable.
Result<void> writeCopy(const Source &source, const Photo &photo, int output, OutputFormat format,
                       double jpegQuality);

} // namespace imageworker
