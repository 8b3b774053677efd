#include "AreaAverager.h"

#include "Vectorised.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace imageworker {

namespace {

/// Red, green, blue and opacity, or sums of them.
typedef float Sums __attribute__((vector_size(16)));

/// Calls @p add with each pixel of the result that pixel @p index of the original touches, and with how much
/// of it.
void forEachShare(int index, int original, int result, const auto &add)
{
    const double scale = static_cast<double>(result) / original;
    const double start = index * scale;
    const double end = (index + 1) * scale;
    const int first = static_cast<int>(start);
    const int last = std::min(static_cast<int>(end), result - 1);
    for (int target = first; target <= last; ++target) {
        const double share = std::min(end, target + 1.0) - std::max(start, static_cast<double>(target));
        if (share > 0) {
            add(target, static_cast<float>(share));
        }
    }
}

LUMAPORT_VECTORISED void addPixels(const std::uint8_t *__restrict rgba, float share, std::size_t width,
                                   float *__restrict columns)
{
    typedef std::uint8_t PixelBytes __attribute__((vector_size(4)));
    for (std::size_t x = 0; x < width; ++x) {
        PixelBytes bytes;
        Sums sums;
        std::memcpy(&bytes, rgba + 4 * x, sizeof(bytes));
        std::memcpy(&sums, columns + 4 * x, sizeof(sums));
        Sums pixel = __builtin_convertvector(bytes, Sums);
        const float weight = share * pixel[3];
        pixel[3] = 1;
        sums += weight * pixel;
        std::memcpy(columns + 4 * x, &sums, sizeof(sums));
    }
}

} // namespace

AreaAverager::AreaAverager(PixelSize original, PixelSize result)
    : m_original(original)
    , m_result(result)
    , m_columns(static_cast<std::size_t>(original.width) * 4)
{}

Result<void> AreaAverager::encodeChunk(int, int top, int height, const RowReader &readRow)
{
    Bytes row(m_columns.size());
    for (int y = top; y < top + height; ++y) {
        readRow(y, row.data());
        addRow(y, row.data());
    }
    return {};
}

void AreaAverager::addRow(int y, const std::uint8_t *rgba)
{
    forEachShare(y, m_original.height, m_result.size.height, [&](int target, float share) {
        if (target != m_row) {
            finishRow();
            m_row = target;
        }
        addPixels(rgba, share, m_columns.size() / 4, m_columns.data());
    });
}

Raster AreaAverager::take()
{
    finishRow();
    return std::move(m_result);
}

void AreaAverager::finishRow()
{
    std::vector<Sums> row(static_cast<std::size_t>(m_result.size.width));
    for (int x = 0; x < m_original.width; ++x) {
        Sums column;
        std::memcpy(&column, m_columns.data() + std::ptrdiff_t{4} * x, sizeof(column));
        forEachShare(x, m_original.width, m_result.size.width, [&](int target, float share) {
            row[static_cast<std::size_t>(target)] += share * column;
        });
    }
    std::ranges::fill(m_columns, 0.0F);
    std::uint8_t *pixel = m_result.row(m_row);
    const auto code = [](float value) {
        return static_cast<std::uint8_t>(std::min(std::lround(value), 255L));
    };
    for (const Sums &sums : row) {
        const float opacity = sums[3];
        for (int channel = 0; opacity > 0 && channel < 3; ++channel) {
            pixel[channel] = code(sums[channel] / opacity);
        }
        // Shares along each axis add up to one, so that this sum is the mean already.
        pixel[3] = code(opacity);
        pixel += 4;
    }
}

} // namespace imageworker
