#pragma once

#include <QObject>

#include <optional>

/// How the program is to look and move at this moment: what the desktop asks for, unless a scheme is forced.
///
/// It starts light and with full motion, and stays so where the desktop says nothing. SettingsPortal sets
/// what the desktop asks for; a forced scheme overrides its scheme. The application's widget palette is set
/// too, so that file dialogs and menus follow.
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
