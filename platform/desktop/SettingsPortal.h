#pragma once

#include <QDBusConnection>
#include <QObject>

#include <chrono>

class QDBusMessage;
class QVariant;
class SystemAppearance;

/// Follows the desktop's settings portal (org.freedesktop.portal.Settings) and hands what it says about
/// light, dark, motion and font to a SystemAppearance, live. Reads again when the portal is started later;
/// without one nothing is handed over.
///
/// Keys: the portal's "color-scheme" (0 no preference, 1 dark, 2 light), GNOME's "font-name" and
/// "enable-animations", KDE's "font" and "AnimationDurationFactor", whose 0 stands for no animation. Motion
/// is reduced when either desktop's key says so.
class SettingsPortal : public QObject
{
    Q_OBJECT

public:
    /// `appearance` must outlive this object.
    SettingsPortal(const QDBusConnection &bus, SystemAppearance &appearance, QObject *parent = nullptr);

    /// Serves events until the portal has answered or refused the first question about light and dark, at
    /// most for `patience`.
    void waitForAnswer(std::chrono::milliseconds patience) const;

Q_SIGNALS:
    void answered();

private Q_SLOTS:
    void settingChanged(const QDBusMessage &message);

private:
    void readAll();
    void read(const QString &group, const QString &key);
    void take(const QString &group, const QString &key, const QVariant &wrappedValue);

    QDBusConnection m_bus;
    SystemAppearance &m_appearance;
    bool m_hasAnswered = false;
    bool m_gnomeReducesMotion = false;
    bool m_kdeReducesMotion = false;
};
