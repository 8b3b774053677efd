#pragma once

#include "CopyMetadata.h"
#include "OutputFile.h"
#include "RowEncoder.h"

#include <memory>

namespace imageworker {

/// Writes a baseline JPEG in sRGB, transparent pixels laid over white. @p quality is a fraction from 0 to 1,
/// the best. Chroma is 4:2:0, or 4:4:4 from a quality of 0.95.
std::unique_ptr<RowEncoder> makeJpegEncoder(OutputFile &output, PixelSize size, double quality,
                                            const CopyMetadata &metadata);

} // namespace imageworker
