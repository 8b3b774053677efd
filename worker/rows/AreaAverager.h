#pragma once

#include "Raster.h"

namespace imageworker {

/// Makes a picture smaller: each pixel of the result is the mean of the part of the original that it covers,
/// by area, colours weighted by their opacity. Takes the rows of the original in order.
class AreaAverager : public RowEncoder
{
public:
    /// @p result is no larger than @p original on either side.
    AreaAverager(PixelSize original, PixelSize result);

    Order order() const override { return Order::OneAfterAnother; }
    int chunkHeight() const override { return 16; }
    Result<void> encodeChunk(int chunk, int top, int height, const RowReader &readRow) override;

    /// Adds row @p y of the original, as red, green, blue and opacity.
    void addRow(int y, const std::uint8_t *rgba);

    /// The result, once all rows have been added.
    Raster take();

private:
    /// Writes row m_row of the result from the sums, which start anew.
    void finishRow();

    PixelSize m_original;
    Raster m_result;
    int m_row = 0;                ///< of the result, being summed up
    std::vector<float> m_columns; ///< for each column: sums of red, green, blue times opacity, and of opacity
};

} // namespace imageworker
