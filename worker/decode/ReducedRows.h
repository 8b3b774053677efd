#pragma once

#include "TileRows.h"

namespace imageworker {

/// A grid's picture made smaller by a whole number while its rows are read, before they are turned into
/// colours.
class ReducedRows : public RowSource
{
public:
    /// The largest power of two by which @p rows can be made smaller, strip by strip, with at least @p
    /// smallestSide pixels left on the longer side.
    static int factorFor(const TileRows &rows, int smallestSide);

    ReducedRows(std::unique_ptr<TileRows> rows, int factor);

    PixelSize size() const override { return m_size; }
    const std::vector<Strip> &strips() const override { return m_strips; }
    void hold(int strips) override { m_rows->hold(strips); }
    Result<void> decodeTile(int worker, int strip, int index) override
    {
        return m_rows->decodeTile(worker, strip, index);
    }
    void readRow(int strip, int y, std::uint8_t *rgba) const override
    {
        m_rows->readReducedRow(strip, y, m_factor, rgba);
    }

private:
    std::unique_ptr<TileRows> m_rows;
    int m_factor;
    PixelSize m_size;
    std::vector<Strip> m_strips;
};

} // namespace imageworker
