#include "Thumbnail.h"

#include "AreaAverager.h"
#include "OutputFile.h"
#include "PhotoDecoder.h"
#include "Pipeline.h"

#include <algorithm>
#include <cmath>

namespace imageworker {

namespace {

PixelSize sizeWithin(PixelSize size, int maximumSide)
{
    const int longest = std::max(size.width, size.height);
    if (longest <= maximumSide) {
        return size;
    }
    const double scale = static_cast<double>(maximumSide) / longest;
    const auto scaled = [scale](int side) {
        return std::max(1, static_cast<int>(std::lround(side * scale)));
    };
    return {scaled(size.width), scaled(size.height)};
}

} // namespace

Result<PixelSize> writeThumbnail(const Source &source, const Photo &photo, int output, int maximumSide)
{
    if (maximumSide < 1) {
        return unreadable();
    }
    const int workers = availableWorkers();
    const auto rows = openPhoto(source, photo, workers, 2 * maximumSide);
    if (!rows) {
        return unreadable();
    }
    const PixelSize size = sizeWithin(photo.transformation().size(), maximumSide);
    AreaAverager averager((*rows)->size(), size);
    if (!runPipeline(**rows, averager, workers)) {
        return unreadable();
    }
    OutputFile file(output);
    file.write(averager.take().rgba);
    return file.outcome().map([size] { return size; });
}

} // namespace imageworker
