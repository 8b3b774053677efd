#include "DampedSpring.h"

#include <algorithm>
#include <cmath>
#include <numbers>

DampedSpring::DampedSpring(double response, double dampingFraction)
    : m_frequency(2.0 * std::numbers::pi / std::max(response, 1e-3))
    , m_dampingFraction(std::clamp(dampingFraction, 0.0, 1.0))
{}

DampedSpring::State DampedSpring::after(State start, double seconds) const
{
    const double decayRate = m_dampingFraction * m_frequency;
    const double decay = std::exp(-decayRate * seconds);
    // x(t) = e^(-decayRate t) (a cos(dt) + b sin(dt)), with a and b from the start; d goes to 0 as z goes
    // to 1.
    const double a = start.displacement;
    const double drive = start.velocity + decayRate * a;
    const double damped = m_frequency * std::sqrt(1.0 - m_dampingFraction * m_dampingFraction);
    if (damped * seconds < 1e-9) {
        const double x = a + drive * seconds;
        return {decay * x, decay * (drive - decayRate * x)};
    }
    const double b = drive / damped;
    const double cosine = std::cos(damped * seconds);
    const double sine = std::sin(damped * seconds);
    const double x = a * cosine + b * sine;
    const double turning = damped * (b * cosine - a * sine);
    return {decay * x, decay * (turning - decayRate * x)};
}

double DampedSpring::amplitude(State state) const
{
    return std::hypot(state.displacement, state.velocity / m_frequency);
}
