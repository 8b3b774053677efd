#pragma once

#include "Planes.h"
#include "RowSource.h"

namespace imageworker {

/// A ring buffer of decoded strips: the upright planes of a few strips that follow one another.
class StripBuffer
{
public:
    /// @p strips: all strips of the picture; must outlive this.
    explicit StripBuffer(const std::vector<Strip> &strips)
        : m_strips(strips)
    {}

    /// How many strips must be held at once; to be called before allocate().
    void reserve(int strips) { m_slots.resize(static_cast<std::size_t>(strips)); }

    /// Makes room for strips of a picture that is @p width pixels wide and has upright planes of @p format.
    void allocate(const SampleFormat &format, int width);

    /// The samples of @p pixels in one plane; all rows of @p pixels belong to @p strip.
    PlaneView samples(int strip, std::size_t plane, PixelRectangle pixels) const;

private:
    using Planes = std::array<std::unique_ptr<std::uint8_t[]>, 3>;

    const std::vector<Strip> &m_strips;
    SampleFormat m_format;
    std::array<std::ptrdiff_t, 3> m_strides = {};
    std::vector<Planes> m_slots; ///< strip n is in slot n modulo their number
};

} // namespace imageworker
