#pragma once

#include <QObject>

/// How the program is to look and move at this moment: what the desktop asks for, unless the application has
/// chosen.
///
/// It starts light and with full motion, which is also what holds where no desktop says anything. Whoever
/// knows the desktop's wishes hands them in (see SettingsPortal); the application's choice goes before them.
/// Every change of the effective scheme also sets the application's widget palette, so that
/// file dialogs and menus follow.
class SystemAppearance : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY reduceMotionChanged)

public:
    /// The application's own choice, over the desktop's.
    enum class Choice { followSystem, light, dark };
    enum class ColorScheme { light, dark };
    enum class Motion { full, reduced };

    using QObject::QObject;

    bool isDark() const { return m_effective == ColorScheme::dark; }
    bool reduceMotion() const { return m_motion == Motion::reduced; }

    void setSystemScheme(ColorScheme scheme);
    void setMotion(Motion motion);

    void apply(Choice choice);

Q_SIGNALS:
    void darkChanged();
    void reduceMotionChanged();

private:
    void update();

    ColorScheme m_system = ColorScheme::light;
    Choice m_choice = Choice::followSystem;
    ColorScheme m_effective = ColorScheme::light;
    Motion m_motion = Motion::full;
};
