#include "ConversionFluid.h"

#include "LumaportPalette.h"
#include "ReferenceDate.h"
#include "WallClock.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>
#include <QRadialGradient>

#include <array>
#include <cmath>

using namespace std::chrono_literals;

namespace {

constexpr auto frameInterval = 33ms; // 30 frames a second
constexpr QRgb cyan = 0x55BEF0;      // a usual system cyan; a Linux desktop names none

struct Drop
{
    QColor color;
    double phase; ///< radians
};

/// The window is active and shown. For a while after it was hidden or minimised, Qt still calls it active.
bool isInUse(const QQuickWindow *window)
{
    return window && window->isActive() && window->visibility() != QWindow::Hidden &&
           window->visibility() != QWindow::Minimized;
}

} // namespace

ConversionFluid::ConversionFluid(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &ConversionFluid::motionChanged, this, &ConversionFluid::updateMotion);
}

void ConversionFluid::setTime(double seconds)
{
    if (m_time != seconds) {
        m_time = seconds;
        update();
    }
}

void ConversionFluid::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemSceneChange) {
        follow(data.window);
    }
    if (change == ItemSceneChange || change == ItemVisibleHasChanged) {
        updateMotion();
    }
}

void ConversionFluid::follow(QQuickWindow *window)
{
    if (m_window) {
        m_window->disconnect(this);
    }
    m_window = window;
    if (window) {
        connect(window, &QWindow::visibilityChanged, this, &ConversionFluid::updateMotion);
        connect(window, &QWindow::activeChanged, this, &ConversionFluid::updateMotion);
    }
}

void ConversionFluid::updateMotion()
{
    const bool wanted = m_active && !m_reduceMotion;
    const bool moving = wanted && isVisible() && isInUse(m_window);
    if (!wanted) {
        setTime(0.0);
    }
    if (!moving) {
        m_timer.stop();
    } else if (!isMoving()) {
        m_timer.start(frameInterval.count(), Qt::PreciseTimer, this);
    }
}

void ConversionFluid::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer.timerId()) {
        setTime(ReferenceDate::fromSystemTime(WallClock().now()).seconds);
    } else {
        QQuickPaintedItem::timerEvent(event);
    }
}

void ConversionFluid::paint(QPainter *painter)
{
    const QRectF canvas = boundingRect();
    QPainterPath disc;
    disc.addEllipse(canvas);
    const std::array drops{Drop{LumaportPalette::cobalt(), 0.0}, Drop{QColor(cyan), 2.1},
                           Drop{LumaportPalette::coral(), 4.2}};
    painter->fillPath(disc, Qt::white);
    for (const Drop &drop : drops) {
        const double angle = 1.4 * m_time + drop.phase;
        const QPointF centre(canvas.width() * (0.5 + 0.28 * std::sin(angle)),
                             canvas.height() * (0.62 + 0.2 * std::cos(0.8 * angle)));
        QColor inner = drop.color;
        inner.setAlphaF(0.85F);
        QColor outer = drop.color;
        outer.setAlphaF(0.0F);
        QRadialGradient gradient(centre, 0.75 * canvas.width());
        gradient.setColorAt(0.0, inner);
        gradient.setColorAt(1.0, outer);
        painter->fillPath(disc, gradient);
    }
    // The ring keeps inside of the item.
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.55F), 1.0));
    painter->drawEllipse(canvas.adjusted(0.5, 0.5, -0.5, -0.5));
}
