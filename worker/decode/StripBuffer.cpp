#include "StripBuffer.h"

#include "PlaneTurn.h"

#include <algorithm>

namespace imageworker {

void StripBuffer::allocate(const SampleFormat &format, int width)
{
    m_format = format;
    const int tallest = std::ranges::max(m_strips, {}, &Strip::height).height;
    m_slots.resize(std::min(m_slots.size(), m_strips.size()));
    for (std::size_t plane = 0; plane < format.planes(); ++plane) {
        const PlaneLayout layout = format.layoutOf(plane);
        // A phase, and a strip that starts within a sample, take one sample more each.
        const auto columns = static_cast<std::size_t>(width >> layout.shiftX) + 2;
        const auto rows = static_cast<std::size_t>(tallest >> layout.shiftY) + 2;
        m_strides[plane] = static_cast<std::ptrdiff_t>(columns * format.sampleBytes());
        for (Planes &slot : m_slots) {
            slot[plane] = std::make_unique<std::uint8_t[]>(columns * rows * format.sampleBytes());
        }
    }
}

PlaneView StripBuffer::samples(int strip, std::size_t plane, PixelRectangle pixels) const
{
    const auto index = static_cast<std::size_t>(strip);
    const PlaneLayout layout = m_format.layoutOf(plane);
    PixelRectangle samples = layout.samplesOf(pixels);
    samples.y -= layout.row(m_strips[index].top);
    const PlaneView whole{m_slots[index % m_slots.size()][plane].get(), m_strides[plane], 0, 0};
    return partOf(whole, samples, m_format.sampleBytes());
}

} // namespace imageworker
