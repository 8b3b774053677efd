#pragma once

#include "CodeConversion.h"
#include "Photo.h"
#include "RowSource.h"
#include "Source.h"
#include "SrgbStage.h"
#include "TileDecoder.h"

#include <mutex>

namespace imageworker {

/// An opacity for each pixel of an upright picture; empty for one that is opaque.
struct AlphaPlane
{
    PixelSize size;
    Bytes samples;
    bool premultiplied = false;
};

/// Decodes a grid tile by tile, in the order in which the upright picture is written, into a few strips of
/// turned planes; nothing of the picture's full size is held.
class TileRows : public RowSource
{
public:
    /// @p workers threads will use it. All that is referred to must outlive it. Unreadable when tiles of this
    /// kind could not be joined.
    static Result<std::unique_ptr<TileRows>> create(const Source &source, const TileGrid &grid,
                                                    const Upright &upright, const ColourDescription &colour,
                                                    AlphaPlane alpha, int workers);

    PixelSize size() const override { return m_size; }
    const std::vector<Strip> &strips() const override { return m_strips; }
    void hold(int strips) override { m_slots.resize(static_cast<std::size_t>(strips)); }
    Result<void> decodeTile(int worker, int strip, int index) override;
    void readRow(int strip, int y, std::uint8_t *rgba) const override;

    /// Writes row @p y of the picture made smaller by @p factor: the mean of each square of that side. The
    /// square's rows must all belong to @p strip, except beyond the picture's lower edge.
    void readReducedRow(int strip, int y, int factor, std::uint8_t *rgba) const;

private:
    /// Planes of one strip; the colour planes begin at the colour sample of its first row.
    struct Slot
    {
        std::array<Bytes, 3> planes;
    };
    struct Tile
    {
        int index = 0;         ///< in the grid
        PixelRectangle stored; ///< its part inside the crop, in its own pixels
        PixelRectangle shown;  ///< where that belongs
    };

    TileRows(const Source &source, const TileGrid &grid, const Upright &upright,
             const ColourDescription &colour, AlphaPlane alpha, int workers);
    void layOutStrips();
    /// Settles the format with the first decoded tile; false for a tile that differs from it.
    bool accept(const SampleFormat &format);
    void prepare(const SampleFormat &format);
    const Slot &slotOf(int strip) const { return m_slots[static_cast<std::size_t>(strip) % m_slots.size()]; }
    PlaneView slotPlane(int strip, std::size_t plane, PixelRectangle shown);
    template<typename Sample>
    void averagePlanes(int strip, int y, int factor, std::array<std::vector<Sample>, 3> &means) const;
    void applyAlpha(const std::uint8_t *opacities, std::size_t width, std::uint8_t *rgba) const;

    const Source &m_source;
    const TileGrid &m_grid;
    const Upright &m_upright;
    const ColourDescription &m_colour;
    const AlphaPlane m_alpha;
    PixelSize m_size;
    std::vector<Strip> m_strips;
    std::vector<std::vector<Tile>> m_tiles;               ///< by strip
    std::vector<std::unique_ptr<TileDecoder>> m_decoders; ///< one for each worker

    std::mutex m_formatMutex;
    bool m_isPrepared = false;
    SampleFormat m_format;
    int m_shiftX = 0; ///< of the colour planes once turned
    int m_shiftY = 0;
    int m_phaseX = 0; ///< colour sample of pixel x is (x + phase) >> shift
    int m_phaseY = 0;
    std::array<std::ptrdiff_t, 3> m_strides = {};
    std::vector<Slot> m_slots; ///< taken in turns
    std::unique_ptr<CodeConversion> m_conversion;
    std::unique_ptr<SrgbStage> m_stage;
};

} // namespace imageworker
