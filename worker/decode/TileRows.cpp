#include "TileRows.h"

#include "CodedUnits.h"
#include "PlaneTurn.h"

#include <algorithm>

namespace imageworker {

namespace {

PixelRectangle intersection(PixelRectangle a, PixelRectangle b)
{
    const int left = std::max(a.x, b.x);
    const int top = std::max(a.y, b.y);
    return {left, top, std::min(a.x + a.width, b.x + b.width) - left,
            std::min(a.y + a.height, b.y + b.height) - top};
}

/// Pixels @p start to @p start + @p length as the samples of a plane with one for each 1 << @p shift of them.
std::pair<int, int> samplesOf(int start, int length, int phase, int shift)
{
    const int first = (start + phase) >> shift;
    return {first, ((start + length - 1 + phase) >> shift) - first + 1};
}

PixelRectangle samplesOf(PixelRectangle pixels, int phaseX, int phaseY, int shiftX, int shiftY)
{
    const auto [x, width] = samplesOf(pixels.x, pixels.width, phaseX, shiftX);
    const auto [y, height] = samplesOf(pixels.y, pixels.height, phaseY, shiftY);
    return {x, y, width, height};
}

/// Where an axis of the crop begins within a pair of pixels that share a colour sample, seen in the direction
/// it is read.
int phaseOf(int start, int length, bool mirrored, int shift)
{
    if (shift == 0) {
        return 0;
    }
    return mirrored ? (start + length) & 1 : start & 1;
}

} // namespace

Result<std::unique_ptr<TileRows>> TileRows::create(const Source &source, const TileGrid &grid,
                                                   const Upright &upright, const ColourDescription &colour,
                                                   AlphaPlane alpha, int workers)
{
    std::unique_ptr<TileRows> rows(new TileRows(source, grid, upright, colour, std::move(alpha), workers));
    if (rows->m_alpha.samples.empty() || rows->m_alpha.size == rows->m_size) {
        return rows;
    }
    return unreadable();
}

TileRows::TileRows(const Source &source, const TileGrid &grid, const Upright &upright,
                   const ColourDescription &colour, AlphaPlane alpha, int workers)
    : m_source(source)
    , m_grid(grid)
    , m_upright(upright)
    , m_colour(colour)
    , m_alpha(std::move(alpha))
    , m_size(upright.size())
    , m_decoders(static_cast<std::size_t>(workers))
{
    layOutStrips();
}

void TileRows::layOutStrips()
{
    std::vector<Tile> tiles;
    for (int row = 0; row < m_grid.rows; ++row) {
        for (int column = 0; column < m_grid.columns; ++column) {
            const PixelRectangle place{column * m_grid.tile.width, row * m_grid.tile.height,
                                       m_grid.tile.width, m_grid.tile.height};
            const PixelRectangle part = intersection(place, m_upright.crop());
            if (part.width > 0 && part.height > 0) {
                const PixelRectangle stored{part.x - place.x, part.y - place.y, part.width, part.height};
                tiles.push_back({row * m_grid.columns + column, stored, m_upright.shown(part)});
            }
        }
    }
    std::ranges::sort(tiles, {}, [](const Tile &tile) { return std::pair(tile.shown.y, tile.shown.x); });
    for (const Tile &tile : tiles) {
        if (m_strips.empty() || m_strips.back().top != tile.shown.y) {
            m_strips.push_back({tile.shown.y, tile.shown.height, 0});
            m_tiles.emplace_back();
        }
        ++m_strips.back().tileCount;
        m_tiles.back().push_back(tile);
    }
}

bool TileRows::accept(const SampleFormat &format)
{
    const std::lock_guard lock(m_formatMutex);
    if (!m_isPrepared) {
        prepare(format);
        m_isPrepared = true;
    }
    return m_format.isLike(format);
}

void TileRows::prepare(const SampleFormat &format)
{
    m_format = format;
    const PixelRectangle crop = m_upright.crop();
    const Turn turn = m_upright.turn();
    m_shiftX = format.chromaShiftX;
    m_shiftY = format.chromaShiftY;
    m_phaseX = phaseOf(crop.x, crop.width, turn.mirroredX, m_shiftX);
    m_phaseY = phaseOf(crop.y, crop.height, turn.mirroredY, m_shiftY);
    if (turn.transposed) {
        std::swap(m_shiftX, m_shiftY);
        std::swap(m_phaseX, m_phaseY);
    }
    int tallest = 0;
    for (const Strip &strip : m_strips) {
        tallest = std::max(tallest, strip.height);
    }
    const auto slots = std::min(m_slots.size(), m_strips.size());
    for (std::size_t plane = 0; plane < static_cast<std::size_t>(format.planeCount); ++plane) {
        const int shiftX = plane == 0 ? 0 : m_shiftX;
        const int shiftY = plane == 0 ? 0 : m_shiftY;
        const auto width = static_cast<std::size_t>(m_size.width >> shiftX) + 2;
        const auto height = static_cast<std::size_t>(tallest >> shiftY) + 2;
        m_strides[plane] = static_cast<std::ptrdiff_t>(width * format.sampleBytes());
        for (std::size_t slot = 0; slot < slots; ++slot) {
            m_slots[slot].planes[plane].resize(width * format.sampleBytes() * height);
        }
    }
    const CodePoints points = effectiveCodePoints(format, m_colour);
    m_conversion = std::make_unique<CodeConversion>(format, points);
    m_stage = makeSrgbStage(m_colour.iccProfile, points, m_conversion->maximumCode(), format.planeCount == 1);
}

PlaneView TileRows::slotPlane(int strip, std::size_t plane, PixelRectangle shown)
{
    const int shiftX = plane == 0 ? 0 : m_shiftX;
    const int shiftY = plane == 0 ? 0 : m_shiftY;
    const int phaseX = plane == 0 ? 0 : m_phaseX;
    const int phaseY = plane == 0 ? 0 : m_phaseY;
    PixelRectangle samples = samplesOf(shown, phaseX, phaseY, shiftX, shiftY);
    samples.y -= (m_strips[static_cast<std::size_t>(strip)].top + phaseY) >> shiftY;
    Bytes &bytes = m_slots[static_cast<std::size_t>(strip) % m_slots.size()].planes[plane];
    const PlaneView whole{bytes.data(), m_strides[plane], 0, 0};
    return partOf(whole, samples, m_format.sampleBytes());
}

Result<void> TileRows::decodeTile(int worker, int strip, int index)
{
    const Tile &tile = m_tiles[static_cast<std::size_t>(strip)][static_cast<std::size_t>(index)];
    const CodedPicture &coded = m_grid.tiles[static_cast<std::size_t>(tile.index)];
    const auto bytes = m_source.read(coded.data);
    if (!bytes || !hasCompleteUnits(coded, *bytes)) {
        return unreadable();
    }
    auto &decoder = m_decoders[static_cast<std::size_t>(worker)];
    if (decoder == nullptr || !decoder->suits(coded)) {
        decoder = TileDecoder::create(coded);
    }
    const auto picture = decoder != nullptr ? decoder->decode(*bytes, m_grid.tile) : unreadable();
    if (!picture || !accept(picture->format)) {
        return unreadable();
    }
    for (std::size_t plane = 0; plane < static_cast<std::size_t>(m_format.planeCount); ++plane) {
        const int shiftX = plane == 0 ? 0 : m_format.chromaShiftX;
        const int shiftY = plane == 0 ? 0 : m_format.chromaShiftY;
        const PixelRectangle samples = samplesOf(tile.stored, 0, 0, shiftX, shiftY);
        const PlaneView target = slotPlane(strip, plane, tile.shown);
        if (!copyTurned(partOf(picture->planes[plane], samples, m_format.sampleBytes()), m_upright.turn(),
                        target, m_format.sampleBytes())) {
            return unreadable();
        }
    }
    return {};
}

void TileRows::readRow(int strip, int y, std::uint8_t *rgba) const
{
    const int top = m_strips[static_cast<std::size_t>(strip)].top;
    const Slot &slot = slotOf(strip);
    SampleRow row;
    row.chromaShift = m_shiftX;
    row.chromaPhase = m_phaseX;
    row.planes[0] = slot.planes[0].data() + m_strides[0] * (y - top);
    const int colourRow = ((y + m_phaseY) >> m_shiftY) - ((top + m_phaseY) >> m_shiftY);
    for (std::size_t plane = 1; plane < static_cast<std::size_t>(m_format.planeCount); ++plane) {
        row.planes[plane] = slot.planes[plane].data() + m_strides[plane] * colourRow;
    }
    CodeRow codes(m_size.width);
    m_conversion->convert(row, codes);
    m_stage->convert(codes, rgba);
    if (!m_alpha.samples.empty()) {
        const auto width = static_cast<std::size_t>(m_size.width);
        applyAlpha(m_alpha.samples.data() + static_cast<std::size_t>(y) * width, width, rgba);
    }
}

void TileRows::applyAlpha(const std::uint8_t *opacities, std::size_t width, std::uint8_t *rgba) const
{
    for (std::size_t x = 0; x < width; ++x) {
        const unsigned opacity = opacities[x];
        std::uint8_t *pixel = rgba + 4 * x;
        if (m_alpha.premultiplied && opacity != 0) {
            for (int channel = 0; channel < 3; ++channel) {
                const unsigned value = (pixel[channel] * 255U + opacity / 2) / opacity;
                pixel[channel] = static_cast<std::uint8_t>(std::min(value, 255U));
            }
        }
        pixel[3] = static_cast<std::uint8_t>(opacity);
    }
}

} // namespace imageworker
