#include "SpringMotion.h"

#include <QtGlobal>

namespace {

// An amplitude of less than this part of the way is below a tenth of a pixel for all animations of this
// program.
constexpr double negligiblePart = 0.0005;

} // namespace

void SpringMotion::setTo(double goal)
{
    if (m_to == goal) {
        return;
    }
    const double displacement = value() - goal;
    m_to = goal;
    m_state.displacement = displacement;
    Q_EMIT toChanged();
    if (!m_animated || !m_complete) {
        rest();
        return;
    }
    m_restAmplitude = negligiblePart * spring().amplitude(m_state);
    setMoving(true);
}

void SpringMotion::setAnimated(bool animated)
{
    if (m_animated == animated) {
        return;
    }
    m_animated = animated;
    Q_EMIT animatedChanged();
    if (!animated && m_moving) {
        rest();
    }
}

void SpringMotion::advance(double seconds)
{
    if (!m_moving) {
        return;
    }
    m_state = spring().after(m_state, seconds);
    if (spring().amplitude(m_state) <= m_restAmplitude) {
        rest();
        return;
    }
    Q_EMIT valueChanged();
}

void SpringMotion::rest()
{
    m_state = {0.0, 0.0};
    Q_EMIT valueChanged();
    setMoving(false);
}

void SpringMotion::setMoving(bool moving)
{
    if (m_moving != moving) {
        m_moving = moving;
        Q_EMIT movingChanged();
    }
}
