#include "Raster.h"

#include <cstring>

namespace imageworker {

Result<void> RasterWriter::encodeChunk(int, int top, int height, const RowReader &readRow)
{
    for (int y = top; y < top + height; ++y) {
        readRow(y, m_raster.row(y));
    }
    return {};
}

RasterSource::RasterSource(Raster raster, const Transformation &transformation)
    : m_raster(std::move(raster))
    , m_transformation(transformation)
    , m_strips{{0, transformation.size().height, 0}}
{}

void RasterSource::readRow(int, int y, std::uint8_t *rgba) const
{
    const PixelRectangle crop = m_transformation.crop();
    const Orientation orientation = m_transformation.orientation();
    const int width = m_transformation.size().width;
    for (int x = 0; x < width; ++x) {
        const int u = orientation.transposed ? y : x;
        const int v = orientation.transposed ? x : y;
        const int storedX = crop.x + (orientation.mirroredX ? crop.width - 1 - u : u);
        const int storedY = crop.y + (orientation.mirroredY ? crop.height - 1 - v : v);
        std::memcpy(rgba + std::ptrdiff_t{4} * x, m_raster.row(storedY) + std::ptrdiff_t{4} * storedX, 4);
    }
}

} // namespace imageworker
