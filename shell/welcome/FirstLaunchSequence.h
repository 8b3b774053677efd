#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// How the welcome looks at each moment: the signature is wiped in, the title and the button appear, and a
/// shimmer sweeps over the signature. Its owner moves `elapsed` on. With reduced motion everything is in its
/// place at once and there is no shimmer.
class FirstLaunchSequence : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool reduceMotion MEMBER m_reduceMotion WRITE setReduceMotion NOTIFY changed)
    Q_PROPERTY(double elapsed MEMBER m_elapsed NOTIFY changed)
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    Q_PROPERTY(double revealProgress READ revealProgress NOTIFY changed)
    Q_PROPERTY(double artworkScale READ artworkScale NOTIFY changed)
    Q_PROPERTY(double shimmerProgress READ shimmerProgress NOTIFY changed)
    Q_PROPERTY(bool titleVisible READ isTitleVisible NOTIFY changed)
    Q_PROPERTY(double titleProgress READ titleProgress NOTIFY changed)
    Q_PROPERTY(double buttonProgress READ buttonProgress NOTIFY changed)

public:
    using QObject::QObject;

    void setReduceMotion(bool reduce);
    /// Something still moves.
    bool isRunning() const;

    /// The share of the signature that shows, from its leading edge: 0 to 1.
    double revealProgress() const;
    double artworkScale() const;
    /// 0: the shimmer has not begun; 1: it has left the signature.
    double shimmerProgress() const;
    /// The title is shown and the button may be pressed.
    bool isTitleVisible() const;
    /// 0: transparent and below its place; 1: opaque and in its place.
    double titleProgress() const;
    double buttonProgress() const;

Q_SIGNALS:
    void changed();

private:
    bool m_reduceMotion = false;
    double m_elapsed = 0.0; ///< seconds since the welcome was shown
};
