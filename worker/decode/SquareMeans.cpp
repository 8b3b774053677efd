#include "SquareMeans.h"

#include "Vectorised.h"

#include <algorithm>
#include <numeric>

namespace imageworker {

namespace {

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

template<typename Sample>
Bytes meansOf(const PlaneView &rows, const PlaneLayout &layout, int width, int factor)
{
    std::vector<std::uint32_t> sums(static_cast<std::size_t>(rows.width));
    for (int row = 0; row < rows.height; ++row) {
        addSamples(reinterpret_cast<const Sample *>(rows.data + rows.stride * row), sums.size(), sums.data());
    }
    Bytes means(static_cast<std::size_t>((width + factor - 1) / factor) * sizeof(Sample));
    auto *mean = reinterpret_cast<Sample *>(means.data());
    for (int left = 0; left < width; left += factor) {
        const int right = std::min(left + factor, width) - 1;
        const auto first = sums.begin() + layout.column(left);
        const auto last = sums.begin() + layout.column(right) + 1;
        const auto count = static_cast<std::uint32_t>((last - first) * rows.height);
        *mean++ = static_cast<Sample>((std::accumulate(first, last, 0U) + count / 2) / count);
    }
    return means;
}

} // namespace

Bytes squareMeans(const PlaneView &rows, const PlaneLayout &layout, int width, int factor,
                  std::size_t sampleBytes)
{
    return sampleBytes == 1 ? meansOf<std::uint8_t>(rows, layout, width, factor)
                            : meansOf<std::uint16_t>(rows, layout, width, factor);
}

} // namespace imageworker
