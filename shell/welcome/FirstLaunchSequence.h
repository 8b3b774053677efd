#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// How the welcome looks at each moment: the signature is wiped in, the title and the button come, a shimmer
/// sweeps over the signature. Time is handed in; once motion is to be reduced, everything is in its
/// place at once and nothing shimmers.
class FirstLaunchSequence : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool reduceMotion READ reduceMotion WRITE setReduceMotion NOTIFY changed)
    Q_PROPERTY(double elapsed READ elapsed WRITE setElapsed NOTIFY changed)
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    Q_PROPERTY(double revealProgress READ revealProgress NOTIFY changed)
    Q_PROPERTY(double artworkScale READ artworkScale NOTIFY changed)
    Q_PROPERTY(double shimmerProgress READ shimmerProgress NOTIFY changed)
    Q_PROPERTY(bool titleVisible READ isTitleVisible NOTIFY changed)
    Q_PROPERTY(double titleProgress READ titleProgress NOTIFY changed)
    Q_PROPERTY(double buttonProgress READ buttonProgress NOTIFY changed)

public:
    using QObject::QObject;

    bool reduceMotion() const { return m_reduceMotion; }
    void setReduceMotion(bool reduce);
    /// Seconds since the welcome was shown.
    double elapsed() const { return m_elapsed; }
    void setElapsed(double seconds);
    Q_INVOKABLE void advance(double seconds) { setElapsed(m_elapsed + seconds); }
    /// Something still moves.
    bool isRunning() const;

    /// How much of the signature shows, from its leading edge: 0 to 1.
    double revealProgress() const;
    double artworkScale() const;
    /// 0: the shimmer has not begun; 1: it has left the signature.
    double shimmerProgress() const;
    /// The title is shown and the button may be pressed.
    bool isTitleVisible() const;
    /// How far title and button have come up: 0 to 1.
    double titleProgress() const;
    double buttonProgress() const;

Q_SIGNALS:
    void changed();

private:
    bool m_reduceMotion = false;
    double m_elapsed = 0.0;
};
