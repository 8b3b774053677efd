#include "SettingsPortal.h"

#include "FakeService.h"
#include "SystemAppearance.h"

#include <QDBusVariant>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QTest>

using namespace std::chrono_literals;

namespace {

using Key = std::pair<const char *, const char *>; // its group and its name

constexpr Key scheme{"org.freedesktop.appearance", "color-scheme"};
constexpr Key animations{"org.gnome.desktop.interface", "enable-animations"};
constexpr Key font{"org.gnome.desktop.interface", "font-name"};
constexpr Key kdeFont{"org.kde.kdeglobals.General", "font"};
constexpr Key factor{"org.kde.kdeglobals.KDE", "AnimationDurationFactor"};

} // namespace

class FakePortal : public FakeService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakePortal()
        : FakeService("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop")
    {}

    void change(const Key &key, const QVariant &value)
    {
        m_values[QString(key.first) + key.second] = value;
        emitSignal("SettingChanged", {key.first, key.second, QVariant::fromValue(QDBusVariant(value))});
    }

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &name, const QDBusMessage &message)
    {
        const QVariant value = m_values.value(group + name);
        if (!value.isValid()) {
            refuse(message, "org.freedesktop.portal.Error.NotFound");
        }
        // As the portal does it: a variant in a variant.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(value)));
    }

private:
    QHash<QString, QVariant> m_values;
};

class SettingsPortalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadWhatThePortalSaysWheneverItComes()
    {
        FakePortal portal;
        portal.change(scheme, 1U);
        portal.change(animations, false);
        portal.come();
        for (const bool isLater : {false, true}) {
            if (isLater) {
                portal.leave();
            }
            SystemAppearance appearance;
            SettingsPortal follower(QDBusConnection::sessionBus(), appearance);
            follower.waitForAnswer(1h);
            QCOMPARE(appearance.isDark(), !isLater);
            if (isLater) {
                portal.come();
            }
            QTRY_VERIFY(appearance.isDark() && appearance.reduceMotion());
        }
    }

    void shouldFollowChangesLive()
    {
        FakePortal portal;
        portal.come();
        SystemAppearance appearance;
        const SettingsPortal follower(QDBusConnection::sessionBus(), appearance);
        portal.change(scheme, 1U);
        QTRY_VERIFY(appearance.isDark());
        portal.change(scheme, 2U);
        QTRY_VERIFY(!appearance.isDark());
        portal.change(factor, "0");
        QTRY_VERIFY(appearance.reduceMotion());
        portal.change(animations, true); // the other desktop's key does not take it back
        portal.change(scheme, 1U);
        QTRY_VERIFY(appearance.isDark());
        QVERIFY(appearance.reduceMotion());
        portal.change(factor, "0.5");
        QTRY_VERIFY(!appearance.reduceMotion());

        portal.change(font, "DejaVu Sans Mono Bold 10");
        QTRY_COMPARE(appearance.fontFamily(), "DejaVu Sans Mono");
        QCOMPARE(QGuiApplication::font().family(), "DejaVu Sans Mono");
        portal.change(font, "Sans 10"); // any font, that is
        QTRY_COMPARE(appearance.fontFamily(), "Inter");
        portal.change(kdeFont, "DejaVu Serif,10,-1,5,50,0,0,0,0,0");
        QTRY_COMPARE(appearance.fontFamily(), "DejaVu Serif");
    }

    void shouldSetTheWidgetPaletteWithTheEffectiveScheme()
    {
        const auto isDark = [](QPalette::ColorRole ground, QPalette::ColorRole text) {
            const QPalette palette = QGuiApplication::palette();
            return palette.color(ground).lightness() < palette.color(text).lightness();
        };
        SystemAppearance appearance;
        appearance.force(SystemAppearance::ColorScheme::Dark);
        QVERIFY(isDark(QPalette::Window, QPalette::WindowText));
        QVERIFY(isDark(QPalette::ToolTipBase, QPalette::ToolTipText));
        appearance.force(std::nullopt);
        QVERIFY(!isDark(QPalette::Window, QPalette::WindowText));

        QGuiApplication::setPalette(QPalette(Qt::black)); // a dark desktop that no portal tells of
        appearance.force(SystemAppearance::ColorScheme::Light);
        QVERIFY(!isDark(QPalette::Window, QPalette::WindowText));
    }
};

QTEST_MAIN(SettingsPortalTest)
#include "SettingsPortalTest.moc"
