#include "Transformation.h"

#include <algorithm>
#include <array>
#include <utility>

namespace imageworker {

PixelSize Transformation::size() const
{
    return m_orientation.transposed ? PixelSize{m_crop.height, m_crop.width}
                                    : PixelSize{m_crop.width, m_crop.height};
}

void Transformation::rotateAnticlockwise(unsigned quarters)
{
    for (unsigned quarter = 0; quarter < quarters % 4; ++quarter) {
        // The new pixel (x, y) is the old one at (width - 1 - y, x).
        flipHorizontally();
        m_orientation.transposed = !m_orientation.transposed;
    }
}

void Transformation::flipVertically()
{
    bool &readByY = m_orientation.transposed ? m_orientation.mirroredX : m_orientation.mirroredY;
    readByY = !readByY;
}

void Transformation::flipHorizontally()
{
    bool &readByX = m_orientation.transposed ? m_orientation.mirroredY : m_orientation.mirroredX;
    readByX = !readByX;
}

bool Transformation::cropTo(std::int64_t left, std::int64_t top, std::int64_t width, std::int64_t height)
{
    const PixelSize shownSize = size();
    const std::int64_t right = std::min<std::int64_t>(left + width, shownSize.width);
    const std::int64_t bottom = std::min<std::int64_t>(top + height, shownSize.height);
    left = std::max<std::int64_t>(left, 0);
    top = std::max<std::int64_t>(top, 0);
    if (left >= right || top >= bottom) {
        return false;
    }
    PixelRectangle part{static_cast<int>(left), static_cast<int>(top), static_cast<int>(right - left),
                        static_cast<int>(bottom - top)};
    if (m_orientation.transposed) {
        std::swap(part.x, part.y);
        std::swap(part.width, part.height);
    }
    m_crop.x += m_orientation.mirroredX ? m_crop.width - part.x - part.width : part.x;
    m_crop.y += m_orientation.mirroredY ? m_crop.height - part.y - part.height : part.y;
    m_crop.width = part.width;
    m_crop.height = part.height;
    return true;
}

void Transformation::applyExifOrientation(unsigned orientation)
{
    struct Step
    {
        unsigned quarters;
        bool isFlipped;
    };
    // Exif 2.32, 4.6.4: where the stored first row and first column belong.
    constexpr std::array<Step, 9> Steps = {{{0, false},
                                            {0, false},
                                            {2, true},
                                            {2, false},
                                            {0, true},
                                            {1, true},
                                            {3, false},
                                            {3, true},
                                            {1, false}}};
    const Step step = orientation < Steps.size() ? Steps[orientation] : Step{};
    rotateAnticlockwise(step.quarters);
    if (step.isFlipped) {
        flipVertically();
    }
}

PixelRectangle Transformation::shown(PixelRectangle stored) const
{
    PixelRectangle part{stored.x - m_crop.x, stored.y - m_crop.y, stored.width, stored.height};
    if (m_orientation.mirroredX) {
        part.x = m_crop.width - part.x - part.width;
    }
    if (m_orientation.mirroredY) {
        part.y = m_crop.height - part.y - part.height;
    }
    if (m_orientation.transposed) {
        std::swap(part.x, part.y);
        std::swap(part.width, part.height);
    }
    return part;
}

} // namespace imageworker
