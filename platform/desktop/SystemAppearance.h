#pragma once

#include <QObject>

#include <optional>

/// How the program is to look and move at this moment: what the desktop asks for, unless a scheme is forced.
///
/// It starts light, with full motion and Qt's idea of the desktop's font, and stays so where the desktop says
/// nothing. SettingsPortal sets what the desktop asks for; a forced scheme overrides its scheme. The
/// application's palette and font are set too, so that file dialogs and menus follow.
class SystemAppearance : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY fontFamilyChanged)
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY reduceMotionChanged)

public:
    enum class ColorScheme { Light, Dark };
    enum class Motion { Full, Reduced };

    explicit SystemAppearance(QObject *parent = nullptr);

    bool isDark() const { return m_effective == ColorScheme::Dark; }
    /// Of every text: the desktop's, or Inter where the desktop names none that is installed.
    QString fontFamily() const { return m_fontFamily; }
    bool reduceMotion() const { return m_motion == Motion::Reduced; }

    void setSystemScheme(ColorScheme scheme);
    void setMotion(Motion motion);
    /// `description` is Pango's, as in "Noto Sans Bold 11", or Qt's, as in "Noto Sans,11,-1,5,700".
    void setSystemFont(const QString &description);

    /// Shows `scheme` whatever the desktop says; none follows the desktop again.
    void force(std::optional<ColorScheme> scheme);

Q_SIGNALS:
    void darkChanged();
    void fontFamilyChanged();
    void reduceMotionChanged();

private:
    void update();

    ColorScheme m_system = ColorScheme::Light;
    std::optional<ColorScheme> m_forced;
    ColorScheme m_effective = ColorScheme::Light;
    Motion m_motion = Motion::Full;
    QString m_fontFamily;
};
