#include "GridDecoder.h"

#include "CodedUnits.h"
#include "PlaneTurn.h"
#include "SquareMeans.h"

#include <algorithm>

namespace imageworker {

namespace {

/// The largest power of two that divides the top of each strip and leaves the longer side @p smallestSide
/// pixels; 1 for a @p smallestSide of 0.
int reductionFor(const std::vector<Strip> &strips, PixelSize size, int smallestSide)
{
    const int longest = std::max(size.width, size.height);
    const auto divides = [](int factor) {
        return [factor](const Strip &strip) { return strip.top % factor == 0; };
    };
    int factor = 1;
    while (smallestSide > 0 && longest / (2 * factor) >= smallestSide &&
           std::ranges::all_of(strips, divides(2 * factor))) {
        factor *= 2;
    }
    return factor;
}

/// The layout of @p stored in the upright picture.
PlaneLayout uprightLayout(PlaneLayout stored, const Transformation &transformation)
{
    const PixelRectangle crop = transformation.crop();
    const Orientation orientation = transformation.orientation();
    // Where the crop starts within a sample, seen in the direction it is read.
    const auto phaseOf = [](int start, int length, bool mirrored, int shift) {
        return (mirrored ? start + length : start) & ((1 << shift) - 1);
    };
    PlaneLayout layout = stored;
    layout.phaseX = phaseOf(crop.x, crop.width, orientation.mirroredX, stored.shiftX);
    layout.phaseY = phaseOf(crop.y, crop.height, orientation.mirroredY, stored.shiftY);
    if (orientation.transposed) {
        std::swap(layout.shiftX, layout.shiftY);
        std::swap(layout.phaseX, layout.phaseY);
    }
    return layout;
}

} // namespace

GridDecoder::GridDecoder(const Source &source, const Picture &picture, std::unique_ptr<AlphaPlane> alpha,
                         int workers, int smallestSide)
    : m_source(source)
    , m_picture(picture)
    , m_grid(std::get<TileGrid>(picture.content))
    , m_alpha(std::move(alpha))
    , m_layout(m_grid, picture.transformation)
    , m_factor(reductionFor(m_layout.strips, picture.transformation.size(), smallestSide))
    , m_decoders(static_cast<std::size_t>(workers))
    , m_buffer(m_layout.strips)
{
    const auto reduced = [this](int length) { return (length + m_factor - 1) / m_factor; };
    m_size = {reduced(picture.transformation.size().width), reduced(picture.transformation.size().height)};
    for (const Strip &strip : m_layout.strips) {
        m_strips.push_back({strip.top / m_factor, reduced(strip.height), strip.tileCount});
    }
}

bool GridDecoder::accept(const SampleFormat &format)
{
    const std::lock_guard lock(m_formatMutex);
    return m_stored ? m_stored->isLike(format) : prepare(format);
}

bool GridDecoder::prepare(const SampleFormat &format)
{
    const auto points = effectiveCodePoints(format, m_picture.colour);
    if (!points) {
        return false;
    }
    m_stored = format;
    m_upright = format;
    m_upright.chroma = uprightLayout(format.chroma, m_picture.transformation);
    m_buffer.allocate(m_upright, m_picture.transformation.size().width);
    SampleFormat converted = m_upright;
    if (m_factor > 1) { // all planes are reduced to the same size
        converted.chroma = {};
    }
    m_conversion = std::make_unique<YcbcrToRgb>(converted, *points);
    m_transform = makeSrgbTransform(m_picture.colour.iccProfile, *points, m_conversion->maximumCode(),
                                    format.planeCount == 1);
    return true;
}

Result<void> GridDecoder::decodeTile(int worker, int strip, int index)
{
    const Tile &tile = m_layout.tiles[static_cast<std::size_t>(strip)][static_cast<std::size_t>(index)];
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
    const std::size_t sampleBytes = m_stored->sampleBytes();
    for (std::size_t plane = 0; plane < m_stored->planes(); ++plane) {
        const PixelRectangle samples = m_stored->layoutOf(plane).samplesOf(tile.stored);
        const PlaneView target = m_buffer.samples(strip, plane, tile.shown);
        if (!copyTurned(partOf(picture->planes[plane], samples, sampleBytes),
                        m_picture.transformation.orientation(), target, sampleBytes)) {
            return unreadable();
        }
    }
    return {};
}

const std::uint8_t *GridDecoder::reducedRow(const PlaneView &rows, const SampleFormat &format,
                                            std::size_t plane, Bytes &means) const
{
    if (m_factor == 1) {
        return rows.data;
    }
    means = squareMeans(rows, format.layoutOf(plane), m_picture.transformation.size().width, m_factor,
                        format.sampleBytes());
    return means.data();
}

void GridDecoder::readRow(int strip, int y, std::uint8_t *rgba) const
{
    const PixelSize full = m_picture.transformation.size();
    const int top = y * m_factor;
    const PixelRectangle rows{0, top, full.width, std::min(m_factor, full.height - top)};
    std::array<Bytes, 3> means;
    SampleRow samples = {};
    for (std::size_t plane = 0; plane < m_upright.planes(); ++plane) {
        samples[plane] = reducedRow(m_buffer.samples(strip, plane, rows), m_upright, plane, means[plane]);
    }
    RgbRow codes(m_size.width);
    m_conversion->convert(samples, codes);
    m_transform->convert(codes, rgba);
    if (m_alpha != nullptr) {
        applyAlpha(rows, rgba);
    }
}

void GridDecoder::applyAlpha(PixelRectangle rows, std::uint8_t *rgba) const
{
    const PlaneView all{m_alpha->samples.data(), m_alpha->size.width, 0, 0};
    Bytes means;
    const std::uint8_t *opacities = reducedRow(partOf(all, rows, 1), SampleFormat(), 0, means);
    for (int x = 0; x < m_size.width; ++x, rgba += 4) {
        const unsigned opacity = opacities[x];
        for (int channel = 0; m_picture.premultiplied && opacity != 0 && channel < 3; ++channel) {
            const unsigned value = (rgba[channel] * 255U + opacity / 2) / opacity;
            rgba[channel] = static_cast<std::uint8_t>(std::min(value, 255U));
        }
        rgba[3] = static_cast<std::uint8_t>(opacity);
    }
}

} // namespace imageworker
