#include "PhotoConverter.h"

#include "Exif.h"
#include "JpegEncoder.h"
#include "PhotoDecoder.h"
#include "Pipeline.h"
#include "PngEncoder.h"
#include "Xmp.h"

namespace imageworker {

Result<void> writeCopy(const Source &source, const Photo &photo, int output, OutputFormat format,
                       double jpegQuality)
{
    const int workers = availableWorkers();
    const auto rows = openPhoto(source, photo, workers);
    if (!rows) {
        return tl::unexpected(rows.error());
    }
    const PixelSize size = (*rows)->size();
    CopyMetadata metadata{photo.exif, photo.xmp};
    describeCopy(metadata.exif, photo.transformation());
    describeCopyInXmp(metadata.xmp, size);
    OutputFile file(output);
    const auto encoder = format == OutputFormat::png ? makePngEncoder(file, size, metadata)
                                                     : makeJpegEncoder(file, size, jpegQuality, metadata);
    return runPipeline(**rows, *encoder, workers);
}

} // namespace imageworker
