#pragma once

#include <QBasicTimer>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// A disc of moving colour that shows a conversion in progress. It moves, at 30 frames a second, only while
/// it is active, motion is not reduced and its window is active and shown. Otherwise it is not drawn again.
class ConversionFluid : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool active MEMBER m_active NOTIFY motionChanged)
    Q_PROPERTY(bool reduceMotion MEMBER m_reduceMotion NOTIFY motionChanged)

public:
    explicit ConversionFluid(QQuickItem *parent = nullptr);

    /// Seconds since the reference date: the moment that is drawn. While moving it follows the clock; without
    /// motion or activity it is 0.
    double time() const { return m_time; }
    void setTime(double seconds);
    bool isMoving() const { return m_timer.isActive(); }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void motionChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void follow(QQuickWindow *window);
    void updateMotion();

    bool m_active = false;
    bool m_reduceMotion = false;
    double m_time = 0.0;
    QBasicTimer m_timer;
    QPointer<QQuickWindow> m_window; ///< the one that the item is in
};
