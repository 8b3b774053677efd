#include "SettingsPortal.h"

#include "SystemAppearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QEventLoop>
#include <QTimer>

namespace {

constexpr QLatin1String serviceName("org.freedesktop.portal.Desktop");
constexpr QLatin1String objectPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String interfaceName("org.freedesktop.portal.Settings");

constexpr QLatin1String appearanceGroup("org.freedesktop.appearance");
constexpr QLatin1String colorSchemeKey("color-scheme");
constexpr QLatin1String gnomeGroup("org.gnome.desktop.interface");
constexpr QLatin1String gnomeAnimationsKey("enable-animations");
constexpr QLatin1String gnomeFontKey("font-name");
constexpr QLatin1String kdeGeneralGroup("org.kde.kdeglobals.General");
constexpr QLatin1String kdeFontKey("font");
constexpr QLatin1String kdeGroup("org.kde.kdeglobals.KDE");
constexpr QLatin1String kdeAnimationsKey("AnimationDurationFactor");

constexpr uint prefersDark = 1;

// Read answers with a variant inside a variant, the signal with one.
QVariant unwrapped(QVariant value)
{
    while (value.userType() == qMetaTypeId<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

SettingsPortal::SettingsPortal(const QDBusConnection &bus, SystemAppearance &appearance, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_appearance(appearance)
{
    m_bus.connect(serviceName, objectPath, interfaceName, QStringLiteral("SettingChanged"), this,
                  SLOT(settingChanged(QDBusMessage)));
    auto *watcher =
        new QDBusServiceWatcher(serviceName, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &SettingsPortal::readAll);
    readAll();
}

void SettingsPortal::waitForAnswer(std::chrono::milliseconds patience) const
{
    if (!m_hasAnswered) {
        QEventLoop loop;
        connect(this, &SettingsPortal::answered, &loop, &QEventLoop::quit);
        QTimer::singleShot(patience, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
}

void SettingsPortal::readAll()
{
    read(appearanceGroup, colorSchemeKey);
    read(gnomeGroup, gnomeAnimationsKey);
    read(gnomeGroup, gnomeFontKey);
    read(kdeGeneralGroup, kdeFontKey);
    read(kdeGroup, kdeAnimationsKey);
}

void SettingsPortal::read(const QString &group, const QString &key)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, QStringLiteral("Read"));
    call << group << key;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid()) {
            take(group, key, reply.value().variant());
        }
        if (key == colorSchemeKey) {
            m_hasAnswered = true;
            Q_EMIT answered();
        }
        watcher->deleteLater();
    });
}

void SettingsPortal::settingChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.size() == 3) {
        take(arguments.at(0).toString(), arguments.at(1).toString(), arguments.at(2));
    }
}

void SettingsPortal::take(const QString &group, const QString &key, const QVariant &wrappedValue)
{
    const QVariant value = unwrapped(wrappedValue);
    if (group == appearanceGroup && key == colorSchemeKey) {
        m_appearance.setSystemScheme(value.toUInt() == prefersDark ? SystemAppearance::ColorScheme::Dark
                                                                   : SystemAppearance::ColorScheme::Light);
        return;
    }
    if ((group == gnomeGroup && key == gnomeFontKey) || (group == kdeGeneralGroup && key == kdeFontKey)) {
        m_appearance.setSystemFont(value.toString());
        return;
    }
    if (group == gnomeGroup && key == gnomeAnimationsKey) {
        m_gnomeReducesMotion = !value.toBool();
    } else if (group == kdeGroup && key == kdeAnimationsKey) {
        bool isNumber = false;
        const double factor = value.toDouble(&isNumber);
        m_kdeReducesMotion = isNumber && factor <= 0.0;
    }
    m_appearance.setMotion(m_gnomeReducesMotion || m_kdeReducesMotion ? SystemAppearance::Motion::Reduced
                                                                      : SystemAppearance::Motion::Full);
}
