#include "AreaAverager.h"

#include <algorithm>
#include <cmath>

namespace imageworker {

namespace {

/// Calls @p add with each pixel of the result that pixel @p index of the original touches, and how much of
/// it.
void forEachShare(int index, int original, int result, const auto &add)
{
    const double scale = static_cast<double>(result) / original;
    const double start = index * scale;
    const double end = (index + 1) * scale;
    const int first = static_cast<int>(start);
    const int last = std::min(static_cast<int>(std::ceil(end)), result) - 1;
    for (int target = first; target <= last; ++target) {
        const double share = std::min(end, target + 1.0) - std::max(start, static_cast<double>(target));
        if (share > 0) {
            add(target, static_cast<float>(share));
        }
    }
}

} // namespace

AreaAverager::AreaAverager(PixelSize original, PixelSize result)
    : m_original(original)
    , m_result(result)
    , m_sums(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height) * 4)
{}

Result<void> AreaAverager::encodeChunk(int, int top, int height, const RowReader &readRow)
{
    Bytes row(static_cast<std::size_t>(m_original.width) * 4);
    for (int y = top; y < top + height; ++y) {
        readRow(y, row.data());
        addRow(y, row.data());
    }
    return {};
}

void AreaAverager::addRow(int y, const std::uint8_t *rgba)
{
    std::vector<float> sums(static_cast<std::size_t>(m_result.width) * 4);
    for (int x = 0; x < m_original.width; ++x) {
        const std::uint8_t *pixel = rgba + std::ptrdiff_t{4} * x;
        const float opacity = pixel[3];
        forEachShare(x, m_original.width, m_result.width, [&](int target, float share) {
            float *sum = sums.data() + std::ptrdiff_t{4} * target;
            const float weight = share * opacity;
            for (int channel = 0; channel < 3; ++channel) {
                sum[channel] += weight * static_cast<float>(pixel[channel]);
            }
            sum[3] += weight;
        });
    }
    forEachShare(y, m_original.height, m_result.height, [&](int target, float share) {
        float *row = m_sums.data() + static_cast<std::size_t>(target) * sums.size();
        for (std::size_t index = 0; index < sums.size(); ++index) {
            row[index] += share * sums[index];
        }
    });
}

Raster AreaAverager::take() const
{
    Raster raster(m_result);
    for (std::size_t pixel = 0; pixel < m_sums.size(); pixel += 4) {
        const float opacity = m_sums[pixel + 3];
        for (std::size_t channel = 0; opacity > 0 && channel < 3; ++channel) {
            const long colour = std::lround(m_sums[pixel + channel] / opacity);
            raster.rgba[pixel + channel] = static_cast<std::uint8_t>(std::min(colour, 255L));
        }
        // Shares along each axis add up to one, so that these sums are means already.
        raster.rgba[pixel + 3] = static_cast<std::uint8_t>(std::min(std::lround(opacity), 255L));
    }
    return raster;
}

} // namespace imageworker
