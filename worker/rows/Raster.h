#pragma once

#include "RowEncoder.h"
#include "RowSource.h"
#include "Transformation.h"

namespace imageworker {

/// A whole picture in memory: sRGB, four bytes for each pixel (red, green, blue, opacity), row by row.
struct Raster
{
    explicit Raster(PixelSize pixels = {})
        : size(pixels)
        , rgba(static_cast<std::size_t>(pixels.width) * static_cast<std::size_t>(pixels.height) * 4)
    {}

    std::uint8_t *row(int y) { return rgba.data() + rowLength() * static_cast<std::size_t>(y); }
    const std::uint8_t *row(int y) const { return rgba.data() + rowLength() * static_cast<std::size_t>(y); }
    std::size_t rowLength() const { return static_cast<std::size_t>(size.width) * 4; }

    PixelSize size;
    Bytes rgba;
};

/// Keeps the rows in a raster.
class RasterWriter : public RowEncoder
{
public:
    explicit RasterWriter(PixelSize size)
        : m_raster(size)
    {}

    Order order() const override { return Order::AtOnce; }
    int chunkHeight() const override { return 64; }
    Result<void> encodeChunk(int chunk, int top, int height, const RowReader &readRow) override;

    Raster take() { return std::move(m_raster); }

private:
    Raster m_raster;
};

/// The rows of a raster, turned upright.
class RasterSource : public RowSource
{
public:
    RasterSource(Raster raster, const Transformation &transformation);

    PixelSize size() const override { return m_transformation.size(); }
    const std::vector<Strip> &strips() const override { return m_strips; }
    void readRow(int strip, int y, std::uint8_t *rgba) const override;

private:
    Raster m_raster;
    Transformation m_transformation;
    std::vector<Strip> m_strips;
};

} // namespace imageworker
