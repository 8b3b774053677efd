#pragma once

#include "Raster.h"

namespace imageworker {

/// Makes a picture smaller: each pixel of the result is the mean of the part of the original that it covers,
/// by area, colours weighted by their opacity. Takes the rows of the original in order.
class AreaAverager : public RowEncoder
{
public:
    AreaAverager(PixelSize original, PixelSize result);

    Order order() const override { return Order::OneAfterAnother; }
    int chunkHeight() const override { return 16; }
    Result<void> begin() override { return {}; }
    Result<void> encodeChunk(int chunk, int top, int height, const RowReader &readRow) override;
    Result<void> finish() override { return {}; }

    /// The result, once all rows have been taken.
    Raster take() const;

private:
    void addRow(int y, const std::uint8_t *rgba);

    PixelSize m_original;
    PixelSize m_result;
    std::vector<float> m_sums; ///< red, green, blue times opacity, and opacity, for each pixel of the result
};

} // namespace imageworker
