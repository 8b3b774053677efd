#pragma once

#include "CopyMetadata.h"
#include "OutputFile.h"
#include "RowEncoder.h"

#include <memory>

namespace imageworker {

/// Writes a PNG of 8-bit RGBA in sRGB. Threads filter and compress chunks of rows independently; the results
/// are joined to one zlib stream.
std::unique_ptr<RowEncoder> makePngEncoder(OutputFile &output, PixelSize size, const CopyMetadata &metadata);

} // namespace imageworker
