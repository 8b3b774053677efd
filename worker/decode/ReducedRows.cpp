#include "ReducedRows.h"

#include "Vectorised.h"

#include <algorithm>

namespace imageworker {

namespace {

int reduced(int length, int factor)
{
    return (length + factor - 1) / factor;
}

LUMAPORT_VECTORISED void addSamples(const std::uint8_t *samples, std::size_t count, std::uint32_t *sums)
{
    for (std::size_t index = 0; index < count; ++index) {
        sums[index] += samples[index];
    }
}

LUMAPORT_VECTORISED void addSamples(const std::uint16_t *samples, std::size_t count, std::uint32_t *sums)
{
    for (std::size_t index = 0; index < count; ++index) {
        sums[index] += samples[index];
    }
}

} // namespace

int ReducedRows::factorFor(const TileRows &rows, int smallestSide)
{
    const int longest = std::max(rows.size().width, rows.size().height);
    int factor = 1;
    const auto fits = [&rows](int candidate) {
        return std::ranges::all_of(rows.strips(),
                                   [candidate](const Strip &strip) { return strip.top % candidate == 0; });
    };
    while (longest / (2 * factor) >= smallestSide && fits(2 * factor)) {
        factor *= 2;
    }
    return factor;
}

ReducedRows::ReducedRows(std::unique_ptr<TileRows> rows, int factor)
    : m_rows(std::move(rows))
    , m_factor(factor)
    , m_size{reduced(m_rows->size().width, factor), reduced(m_rows->size().height, factor)}
{
    for (const Strip &strip : m_rows->strips()) {
        m_strips.push_back({strip.top / factor, reduced(strip.height, factor), strip.tileCount});
    }
}

template<typename Sample>
void TileRows::averagePlanes(int strip, int y, int factor, std::array<std::vector<Sample>, 3> &means) const
{
    const int top = m_strips[static_cast<std::size_t>(strip)].top;
    const Slot &slot = slotOf(strip);
    for (std::size_t plane = 0; plane < static_cast<std::size_t>(m_format.planeCount); ++plane) {
        const int shiftX = plane == 0 ? 0 : m_shiftX;
        const int shiftY = plane == 0 ? 0 : m_shiftY;
        const int phaseX = plane == 0 ? 0 : m_phaseX;
        const int phaseY = plane == 0 ? 0 : m_phaseY;
        const int origin = (top + phaseY) >> shiftY;
        const int bottom = std::min((y + 1) * factor, m_size.height) - 1;
        const int firstRow = ((y * factor + phaseY) >> shiftY) - origin;
        const int lastRow = ((bottom + phaseY) >> shiftY) - origin;
        const auto width = static_cast<std::size_t>((m_size.width - 1 + phaseX) >> shiftX) + 1;
        std::vector<std::uint32_t> sums(width);
        for (int row = firstRow; row <= lastRow; ++row) {
            const std::uint8_t *samples = slot.planes[plane].data() + m_strides[plane] * row;
            addSamples(reinterpret_cast<const Sample *>(samples), width, sums.data());
        }
        const auto rowCount = static_cast<std::uint32_t>(lastRow - firstRow + 1);
        for (std::size_t x = 0; x < means[plane].size(); ++x) {
            const int start = static_cast<int>(x) * factor;
            const int end = std::min(start + factor, m_size.width) - 1;
            const auto first = static_cast<std::size_t>((start + phaseX) >> shiftX);
            const auto last = static_cast<std::size_t>((end + phaseX) >> shiftX);
            std::uint32_t sum = 0;
            for (std::size_t index = first; index <= last; ++index) {
                sum += sums[index];
            }
            const auto count = rowCount * static_cast<std::uint32_t>(last - first + 1);
            means[plane][x] = static_cast<Sample>((sum + count / 2) / count);
        }
    }
}

void TileRows::readReducedRow(int strip, int y, int factor, std::uint8_t *rgba) const
{
    const auto width = static_cast<std::size_t>(reduced(m_size.width, factor));
    SampleRow row;
    CodeRow codes(static_cast<int>(width));
    const auto convert = [&]<typename Sample>(Sample) {
        std::array<std::vector<Sample>, 3> means;
        means.fill(std::vector<Sample>(width));
        averagePlanes(strip, y, factor, means);
        for (std::size_t plane = 0; plane < means.size(); ++plane) {
            row.planes[plane] = reinterpret_cast<const std::uint8_t *>(means[plane].data());
        }
        m_conversion->convert(row, codes);
    };
    if (m_format.sampleBytes() == 1) {
        convert(std::uint8_t{});
    } else {
        convert(std::uint16_t{});
    }
    m_stage->convert(codes, rgba);
    if (m_alpha.samples.empty()) {
        return;
    }
    Bytes opacities(width);
    for (std::size_t x = 0; x < width; ++x) {
        unsigned sum = 0;
        unsigned count = 0;
        for (int line = y * factor; line < std::min((y + 1) * factor, m_size.height); ++line) {
            for (int column = static_cast<int>(x) * factor;
                 column < std::min((static_cast<int>(x) + 1) * factor, m_size.width); ++column) {
                sum +=
                    m_alpha.samples[static_cast<std::size_t>(line) * static_cast<std::size_t>(m_size.width) +
                                    static_cast<std::size_t>(column)];
                ++count;
            }
        }
        opacities[x] = static_cast<std::uint8_t>((sum + count / 2) / count);
    }
    applyAlpha(opacities.data(), width, rgba);
}

} // namespace imageworker
