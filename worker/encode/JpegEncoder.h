#pragma once

#include "CopyMetadata.h"
#include "OutputFile.h"
#include "RowEncoder.h"

#include <memory>

namespace imageworker {

/// Writes a baseline JPEG, transparent pixels laid over white, marked as sRGB. @p quality is a fraction, 1
/// being the best; it becomes the library's 0 to 100. Colours are halved in both directions except for the
/// best qualities.
std::unique_ptr<RowEncoder> makeJpegEncoder(OutputFile &output, PixelSize size, double quality,
                                            const CopyMetadata &metadata);

} // namespace imageworker
