#include "SettingsPortal.h"

#include "SystemAppearance.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>
#include <QTest>

#include <memory>

// The desktop's side: answers Read and sends SettingChanged, under the portal's own name on the test's
// private bus.
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakePortal()
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("fake portal")))
    {
        m_bus.registerObject(path(), this, QDBusConnection::ExportAllSlots);
    }
    ~FakePortal() override
    {
        m_bus.unregisterService(name());
        QDBusConnection::disconnectFromBus(QStringLiteral("fake portal"));
    }

    bool start() { return m_bus.registerService(name()); }
    void set(const QString &group, const QString &key, const QVariant &value)
    {
        m_values[group + key] = value;
    }

    void change(const QString &group, const QString &key, const QVariant &value)
    {
        set(group, key, value);
        QDBusMessage signal = QDBusMessage::createSignal(
            path(), QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &key, const QDBusMessage &message)
    {
        const QVariant value = m_values.value(group + key);
        if (!value.isValid()) {
            message.setDelayedReply(true);
            m_bus.send(
                message.createErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"), key));
        }
        // As the portal does it: a variant in a variant.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(value)));
    }

private:
    static QString name() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
    static QString path() { return QStringLiteral("/org/freedesktop/portal/desktop"); }

    QDBusConnection m_bus;
    QHash<QString, QVariant> m_values;
};

class SettingsPortalTest : public QObject
{
    Q_OBJECT

    const QString m_appearanceGroup = QStringLiteral("org.freedesktop.appearance");
    const QString m_scheme = QStringLiteral("color-scheme");
    const QString m_gnome = QStringLiteral("org.gnome.desktop.interface");
    const QString m_animations = QStringLiteral("enable-animations");
    const QString m_kde = QStringLiteral("org.kde.kdeglobals.KDE");
    const QString m_factor = QStringLiteral("AnimationDurationFactor");

    std::unique_ptr<FakePortal> m_portal;
    std::unique_ptr<SystemAppearance> m_appearance;

    std::unique_ptr<SettingsPortal> follow()
    {
        return std::make_unique<SettingsPortal>(QDBusConnection::sessionBus(), *m_appearance);
    }

private Q_SLOTS:
    void init()
    {
        m_portal = std::make_unique<FakePortal>();
        m_appearance = std::make_unique<SystemAppearance>();
    }

    void shouldReadWhatThePortalSaysAtTheStart()
    {
        m_portal->set(m_appearanceGroup, m_scheme, 1U);
        m_portal->set(m_gnome, m_animations, false);
        QVERIFY(m_portal->start());
        const auto follower = follow();
        QTRY_VERIFY(m_appearance->isDark());
        QTRY_VERIFY(m_appearance->reduceMotion());
    }

    void shouldFollowChangesLive()
    {
        QVERIFY(m_portal->start());
        const auto follower = follow();
        m_portal->change(m_appearanceGroup, m_scheme, 1U);
        QTRY_VERIFY(m_appearance->isDark());
        m_portal->change(m_appearanceGroup, m_scheme, 2U);
        QTRY_VERIFY(!m_appearance->isDark());
        m_portal->change(m_kde, m_factor, QStringLiteral("0"));
        QTRY_VERIFY(m_appearance->reduceMotion());
        m_portal->change(m_gnome, m_animations, true); // the other desktop's key does not take it back
        m_portal->change(m_appearanceGroup, m_scheme, 1U);
        QTRY_VERIFY(m_appearance->isDark());
        QVERIFY(m_appearance->reduceMotion());
        m_portal->change(m_kde, m_factor, QStringLiteral("0.5"));
        QTRY_VERIFY(!m_appearance->reduceMotion());
    }

    void shouldReadWhenThePortalComesLater()
    {
        const auto follower = follow();
        m_portal->set(m_appearanceGroup, m_scheme, 1U);
        QVERIFY(m_portal->start());
        QTRY_VERIFY(m_appearance->isDark());
    }

    void shouldSetTheWidgetPaletteWithTheEffectiveScheme()
    {
        const auto isDark = [](QPalette::ColorRole ground, QPalette::ColorRole text) {
            const QPalette palette = QGuiApplication::palette();
            return palette.color(ground).lightness() < palette.color(text).lightness();
        };
        m_appearance->force(SystemAppearance::ColorScheme::Dark);
        QVERIFY(isDark(QPalette::Window, QPalette::WindowText));
        QVERIFY(isDark(QPalette::ToolTipBase, QPalette::ToolTipText));
        m_appearance->force(std::nullopt);
        QVERIFY(!isDark(QPalette::Window, QPalette::WindowText));

        QGuiApplication::setPalette(QPalette(Qt::black)); // a dark desktop that no portal tells of
        m_appearance->force(SystemAppearance::ColorScheme::Light);
        QVERIFY(!isDark(QPalette::Window, QPalette::WindowText));
    }
};

QTEST_MAIN(SettingsPortalTest)
#include "SettingsPortalTest.moc"
