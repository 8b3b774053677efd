#pragma once

#include "DampedSpring.h"

#include <QObject>
#include <QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

/// A number that follows its goal `to` on a damped spring. Time is handed in by advance(); QML uses
/// `SpringValue`, which does so with every frame while the spring is moving.
///
/// A new goal keeps the velocity of the moment. While `animated` is false the value is always its goal. The
/// first goal, set as the object is made, is taken without motion.
class SpringMotion : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(double to READ to WRITE setTo NOTIFY toChanged)
    Q_PROPERTY(double value READ value NOTIFY valueChanged)
    Q_PROPERTY(double response MEMBER m_response NOTIFY springChanged)
    Q_PROPERTY(double dampingFraction MEMBER m_dampingFraction NOTIFY springChanged)
    Q_PROPERTY(bool animated READ isAnimated WRITE setAnimated NOTIFY animatedChanged)
    Q_PROPERTY(bool moving READ isMoving NOTIFY movingChanged)

public:
    using QObject::QObject;

    double to() const { return m_to; }
    double value() const { return m_to + m_state.displacement; }
    bool isAnimated() const { return m_animated; }
    bool isMoving() const { return m_moving; }

    void setTo(double goal);
    void setAnimated(bool animated);

    /// Advances by `seconds`. At rest it does nothing.
    Q_INVOKABLE void advance(double seconds);

    void classBegin() override { m_complete = false; }
    void componentComplete() override { m_complete = true; }

Q_SIGNALS:
    void toChanged();
    void valueChanged();
    void springChanged();
    void animatedChanged();
    void movingChanged();

private:
    void rest();
    void setMoving(bool moving);
    DampedSpring spring() const { return {m_response, m_dampingFraction}; }

    double m_to = 0.0;
    DampedSpring::State m_state{0.0, 0.0};
    double m_restAmplitude = 0.0;
    double m_response = 0.35;
    double m_dampingFraction = 0.8;
    bool m_animated = true;
    bool m_moving = false;
    bool m_complete = true;
};
