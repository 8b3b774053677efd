#pragma once

#include "RowSource.h"
#include "SrgbTransform.h"
#include "StripBuffer.h"
#include "TileDecoder.h"
#include "TileLayout.h"
#include "YcbcrToRgb.h"

#include <mutex>

namespace imageworker {

/// An opacity for each pixel of an upright picture.
struct AlphaPlane
{
    PixelSize size;
    Bytes samples;
};

/// Decodes a grid tile by tile, in the order in which the upright picture is written. Only a few strips of
/// the picture are in memory.
class GridDecoder : public RowSource
{
public:
    /// @p picture is a grid. @p alpha has the size of the upright picture, or is null when that is opaque.
    /// @p workers threads will use this. @p smallestSide: the picture may be made smaller by a whole number,
    /// its longer side to no fewer pixels; 0 asks for the full size. What is referred to must outlive this.
    GridDecoder(const Source &source, const Picture &picture, std::unique_ptr<AlphaPlane> alpha, int workers,
                int smallestSide);

    PixelSize size() const override { return m_size; }
    const std::vector<Strip> &strips() const override { return m_strips; }
    void reserveStrips(int count) override { m_buffer.reserve(count); }
    Result<void> decodeTile(int worker, int strip, int index) override;
    void readRow(int strip, int y, std::uint8_t *rgba) const override;

private:
    /// Makes the first tile's format that of the picture; false for a tile of another format, and for
    /// one whose colours cannot be converted.
    bool accept(const SampleFormat &format);
    bool prepare(const SampleFormat &format);
    /// The first of @p rows, or their means where the picture is made smaller; these are kept in @p means.
    const std::uint8_t *reducedRow(const PlaneView &rows, const SampleFormat &format, std::size_t plane,
                                   Bytes &means) const;
    void applyAlpha(PixelRectangle rows, std::uint8_t *rgba) const;

    const Source &m_source;
    const Picture &m_picture;
    const TileGrid &m_grid;
    const std::unique_ptr<AlphaPlane> m_alpha;
    const TileLayout m_layout;
    int m_factor; ///< the picture is made smaller by it
    PixelSize m_size;
    std::vector<Strip> m_strips;                          ///< in rows of the smaller picture
    std::vector<std::unique_ptr<TileDecoder>> m_decoders; ///< one for each worker

    std::mutex m_formatMutex;
    std::optional<SampleFormat> m_stored; ///< of the tiles
    SampleFormat m_upright;               ///< of the strips
    StripBuffer m_buffer;
    std::unique_ptr<YcbcrToRgb> m_conversion;
    std::unique_ptr<SrgbTransform> m_transform;
};

} // namespace imageworker
