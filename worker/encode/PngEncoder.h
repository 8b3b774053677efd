#pragma once

#include "CopyMetadata.h"
#include "OutputFile.h"
#include "RowEncoder.h"

#include <memory>

namespace imageworker {

/// Writes a PNG of 8 bits with opacity, marked as sRGB. Chunks of rows are filtered and compressed on their
/// own, so that all threads can share the work, and joined to one stream.
std::unique_ptr<RowEncoder> makePngEncoder(OutputFile &output, PixelSize size, const CopyMetadata &metadata);

} // namespace imageworker
