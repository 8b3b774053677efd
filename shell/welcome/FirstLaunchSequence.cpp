#include "FirstLaunchSequence.h"

#include "DampedSpring.h"

#include <QEasingCurve>
#include <QPointF>

#include <algorithm>

namespace {

// Seconds.
constexpr double revealDuration = 1.65;
constexpr double titleAt = 1.42;
constexpr double riseDuration = 0.45;
constexpr double buttonDelay = 0.08;
constexpr double shimmerAt = titleAt + 0.38;
constexpr double shimmerDuration = 1.05;
constexpr double end = shimmerAt + shimmerDuration;

constexpr double initialScale = 0.96;

QEasingCurve bezier(QPointF firstControl, QPointF secondControl)
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(firstControl, secondControl, {1.0, 1.0});
    return curve;
}

double easeInOut(double fraction)
{
    static const QEasingCurve curve = bezier({0.42, 0.0}, {0.58, 1.0});
    return curve.valueForProgress(std::clamp(fraction, 0.0, 1.0));
}

double easeOut(double fraction)
{
    static const QEasingCurve curve = bezier({0.0, 0.0}, {0.58, 1.0});
    return curve.valueForProgress(std::clamp(fraction, 0.0, 1.0));
}

} // namespace

void FirstLaunchSequence::setReduceMotion(bool reduce)
{
    if (m_reduceMotion != reduce) {
        m_reduceMotion = reduce;
        if (reduce) {
            m_elapsed = end; // also when motion is allowed again later: nothing starts a second time
        }
        Q_EMIT changed();
    }
}

bool FirstLaunchSequence::isRunning() const
{
    return m_elapsed < end;
}

double FirstLaunchSequence::revealProgress() const
{
    return easeInOut(m_elapsed / revealDuration);
}

double FirstLaunchSequence::artworkScale() const
{
    const DampedSpring spring(0.65, 0.82);
    return 1.0 + spring.after({initialScale - 1.0, 0.0}, m_elapsed).displacement;
}

double FirstLaunchSequence::shimmerProgress() const
{
    return easeInOut((m_elapsed - shimmerAt) / shimmerDuration);
}

bool FirstLaunchSequence::isTitleVisible() const
{
    return m_elapsed >= titleAt;
}

double FirstLaunchSequence::titleProgress() const
{
    return easeOut((m_elapsed - titleAt) / riseDuration);
}

double FirstLaunchSequence::buttonProgress() const
{
    return easeOut((m_elapsed - titleAt - buttonDelay) / riseDuration);
}
