#pragma once

#include <QObject>

#include <optional>

/// How the program is to look and move at this moment: what the desktop asks for, unless a scheme is forced.
///
/// It starts light and with full motion, which is also what holds where no desktop says anything. Whoever
/// knows the desktop's wishes hands them in (see SettingsPortal); a forced scheme goes before them.
/// The application's widget palette is set with it, so that file dialogs and menus follow.
class SystemAppearance : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY reduceMotionChanged)

public:
    enum class ColorScheme { Light, Dark };
    enum class Motion { Full, Reduced };

    using QObject::QObject;

    bool isDark() const { return m_effective == ColorScheme::Dark; }
    bool reduceMotion() const { return m_motion == Motion::Reduced; }

    void setSystemScheme(ColorScheme scheme);
    void setMotion(Motion motion);

    /// Shows `scheme` whatever the desktop says; none follows the desktop again.
    void force(std::optional<ColorScheme> scheme);

Q_SIGNALS:
    void darkChanged();
    void reduceMotionChanged();

private:
    void update();

    ColorScheme m_system = ColorScheme::Light;
    std::optional<ColorScheme> m_forced;
    ColorScheme m_effective = ColorScheme::Light;
    Motion m_motion = Motion::Full;
};
