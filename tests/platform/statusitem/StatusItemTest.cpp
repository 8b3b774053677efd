#include "DesktopStatusItem.h"
#include "StatusNotifierItem.h"
#include "StatusNotifierMenu.h"
#include "TrayIconItem.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QtEndian>

namespace {

QString watcherName()
{
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

/// A panel's side of the bus, on a connection of its own.
class FakeWatcher : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost)

public:
    FakeWatcher()
        : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("watcher")))
    {
        bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                           QDBusConnection::ExportAllContents);
    }
    ~FakeWatcher() override
    {
        leave();
        QDBusConnection::disconnectFromBus(QStringLiteral("watcher"));
    }

    void come() { bus.registerService(watcherName()); }
    void leave() { bus.unregisterService(watcherName()); }

    /// Calls what registered itself last, and waits for the answer.
    QDBusMessage call(const QString &path, const QString &interface, const QString &method,
                      const QVariantList &arguments = {})
    {
        QDBusMessage message = QDBusMessage::createMethodCall(items.last(), path, interface, method);
        message.setArguments(arguments);
        QDBusPendingCallWatcher watcher(bus.asyncCall(message));
        QSignalSpy finished(&watcher, &QDBusPendingCallWatcher::finished);
        finished.wait();
        return watcher.reply();
    }
    QDBusMessage item(const QString &method, const QVariantList &arguments = {})
    {
        return call(QStringLiteral("/StatusNotifierItem"), QStringLiteral("org.kde.StatusNotifierItem"),
                    method, arguments);
    }
    QDBusMessage menu(const QString &method, const QVariantList &arguments = {})
    {
        return call(StatusNotifierMenu::objectPath, QStringLiteral("com.canonical.dbusmenu"), method,
                    arguments);
    }
    QVariantMap properties()
    {
        const QDBusMessage reply =
            call(QStringLiteral("/StatusNotifierItem"), QStringLiteral("org.freedesktop.DBus.Properties"),
                 QStringLiteral("GetAll"), {QStringLiteral("org.kde.StatusNotifierItem")});
        return qdbus_cast<QVariantMap>(reply.arguments().value(0));
    }

    QDBusConnection bus;
    bool hasHost = true;
    QStringList items;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service) // NOLINT(readability-identifier-naming)
    {
        items.append(service);
    }

Q_SIGNALS:
    void StatusNotifierHostRegistered(); // NOLINT(readability-identifier-naming)
};

/// Stands for the icon in an XEmbed tray.
struct RecordingItem : StatusItem
{
    static inline int shown = 0;

    RecordingItem() { ++shown; }
    ~RecordingItem() override { --shown; }
    RecordingItem(const RecordingItem &) = delete;
    RecordingItem &operator=(const RecordingItem &) = delete;

    void setLook(const StatusItemLook &newLook) override { look = newLook; }
    void setMenu(const QList<StatusMenuEntry> &newEntries) override { entries = newEntries; }
    std::optional<QRect> place() const override { return QRect(5, 6, 22, 22); }

    StatusItemLook look;
    QList<StatusMenuEntry> entries;
};

StatusItemLook someLook()
{
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, QColor(0x80, 0x40, 0x20, 0xFF));
    image.setPixelColor(1, 0, QColor(0xFF, 0xFF, 0xFF, 0x80));
    return {.images = {image, image.scaled(4, 2)},
            .toolTip = QStringLiteral("Lumaport: Auto-convert: On"),
            .accessibilityLabel = QStringLiteral("Lumaport, Auto-convert: On")};
}

} // namespace

class StatusItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRegisterWithEveryWatcherThatComes()
    {
        StatusNotifierItem item(QDBusConnection::sessionBus());
        QSignalSpy presence(&item, &StatusNotifierItem::hostPresenceChanged);
        QTRY_COMPARE(presence.size(), 1);
        QCOMPARE(presence.takeFirst().first().toBool(), false);

        FakeWatcher watcher;
        watcher.come();
        QTRY_COMPARE(watcher.items.size(), 1);
        QVERIFY(watcher.items.last().startsWith(QLatin1String("org.kde.StatusNotifierItem-")));
        QTRY_VERIFY(!presence.isEmpty() && presence.last().first().toBool());
        watcher.leave();
        QTRY_VERIFY(!presence.last().first().toBool());
        watcher.come();
        QTRY_COMPARE(watcher.items.size(), 2);
    }

    void shouldShowItsLookOnTheBus()
    {
        FakeWatcher watcher;
        watcher.come();
        StatusNotifierItem item(QDBusConnection::sessionBus());
        item.setLook(someLook());
        QTRY_COMPARE(watcher.items.size(), 1);

        const QVariantMap properties = watcher.properties();
        QCOMPARE(properties.value(QStringLiteral("Id")).toString(), QStringLiteral("io.lumaport.Lumaport"));
        QCOMPARE(properties.value(QStringLiteral("Status")).toString(), QStringLiteral("Active"));
        QCOMPARE(properties.value(QStringLiteral("ItemIsMenu")), QVariant(false));
        QCOMPARE(properties.value(QStringLiteral("IconAccessibleDesc")).toString(),
                 QStringLiteral("Lumaport, Auto-convert: On"));
        const auto toolTip = qdbus_cast<StatusNotifierToolTip>(properties.value(QStringLiteral("ToolTip")));
        QCOMPARE(toolTip.title, QStringLiteral("Lumaport: Auto-convert: On"));

        const auto pixmaps =
            qdbus_cast<StatusNotifierPixmaps>(properties.value(QStringLiteral("IconPixmap")));
        QCOMPARE(pixmaps.size(), 2);
        QCOMPARE(pixmaps.at(1).width, 4);
        QCOMPARE(pixmaps.at(0).height, 1);
        // Alpha first, whatever the machine's byte order, and colours not multiplied by it.
        QCOMPARE(pixmaps.at(0).bytes.toHex(), QByteArray("ff80402080ffffff"));
    }

    void shouldTellWhereItWasClicked()
    {
        FakeWatcher watcher;
        watcher.come();
        StatusNotifierItem item(QDBusConnection::sessionBus());
        QTRY_COMPARE(watcher.items.size(), 1);
        QSignalSpy activated(&item, &StatusItem::activated);
        QVERIFY(!item.place());

        watcher.item(QStringLiteral("Activate"), {700, 12});
        QCOMPARE(activated.size(), 1);
        QCOMPARE(item.place(), std::optional(QRect(700, 12, 1, 1)));
        // A host that does not know says 0, 0: an old place must not stay.
        watcher.item(QStringLiteral("Activate"), {0, 0});
        QCOMPARE(activated.size(), 2);
        QVERIFY(!item.place());
    }

    void shouldOfferItsMenuOnTheBus()
    {
        FakeWatcher watcher;
        watcher.come();
        StatusNotifierItem item(QDBusConnection::sessionBus());
        QTRY_COMPARE(watcher.items.size(), 1);
        int opened = 0;
        int forbidden = 0;
        item.setMenu(
            {{.title = QStringLiteral("Open _it"), .isChecked = {}, .action = [&opened] { ++opened; }},
             {.kind = StatusMenuEntry::Kind::separator, .title = {}, .isChecked = {}, .action = {}},
             {.title = QStringLiteral("PNG"), .isChecked = true, .action = {}},
             {.title = QStringLiteral("Reveal"), .isEnabled = false, .isChecked = {}, .action = [&forbidden] {
                  ++forbidden;
              }}});

        const QDBusMessage reply = watcher.menu(QStringLiteral("GetLayout"), {0, -1, QStringList()});
        QCOMPARE(reply.arguments().size(), 2);
        QVERIFY(reply.arguments().at(0).toUInt() > 1); // it changed since the start
        const auto root = qdbus_cast<StatusNotifierMenuNode>(reply.arguments().at(1));
        QCOMPARE(root.children.size(), 4);
        const auto property = [&root](int child, const char *name) {
            return root.children.at(child).properties.value(QLatin1String(name));
        };
        QCOMPARE(property(0, "label").toString(), QStringLiteral("Open __it"));
        QCOMPARE(property(1, "type").toString(), QStringLiteral("separator"));
        QCOMPARE(property(2, "toggle-type").toString(), QStringLiteral("radio"));
        QCOMPARE(property(2, "toggle-state").toInt(), 1);
        QCOMPARE(property(3, "enabled"), QVariant(false));

        const auto answered = [&watcher](const QList<int> &ids) {
            const QDBusMessage properties =
                watcher.menu(QStringLiteral("GetGroupProperties"), {QVariant::fromValue(ids), QStringList()});
            return qdbus_cast<StatusNotifierMenuProperties>(properties.arguments().value(0)).size();
        };
        QCOMPARE(answered({1, 4, 99}), 2);
        QCOMPARE(answered({}), 5); // all of them, and the root

        const auto event = [&watcher](int id, const char *kind) {
            watcher.menu(QStringLiteral("Event"),
                         {id, QLatin1String(kind), QVariant::fromValue(QDBusVariant(QString())), 0U});
        };
        event(root.children.at(0).id, "hovered");
        QCOMPARE(opened, 0);
        event(root.children.at(0).id, "clicked");
        QCOMPARE(opened, 1);
        event(root.children.at(3).id, "clicked");
        QCOMPARE(forbidden, 0);
        event(99, "clicked");
    }

    void shouldChangeTheOldTraysMenuInPlace()
    {
        TrayIconItem item;
        int chosen = 0;
        int opened = 0;
        const auto entries = [&](const char *title, bool isPng) {
            return QList<StatusMenuEntry>{
                {.title = QLatin1String(title), .isChecked = {}, .action = [&opened] { ++opened; }},
                {.kind = StatusMenuEntry::Kind::separator, .title = {}, .isChecked = {}, .action = {}},
                {.title = QStringLiteral("PNG"), .isChecked = isPng, .action = [&chosen] { ++chosen; }},
                {.title = QStringLiteral("JPEG"), .isChecked = !isPng, .action = [&chosen] { ++chosen; }}};
        };
        item.setMenu(entries("Pause", true));
        const QWidgetList widgets = QApplication::topLevelWidgets();
        const auto *menu = qobject_cast<QMenu *>(widgets.constFirst());
        QVERIFY(menu);
        const QList<QAction *> lines = menu->actions();
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines.at(1)->isSeparator());
        lines.at(2)->trigger(); // one of the two holds, also when it is chosen again
        QVERIFY(lines.at(2)->isChecked());
        QCOMPARE(chosen, 1);

        item.setMenu(entries("Resume", false)); // as under the pointer
        QCOMPARE(menu->actions(), lines);
        QCOMPARE(lines.at(0)->text(), QStringLiteral("Resume"));
        QVERIFY(lines.at(3)->isChecked() && !lines.at(2)->isChecked());
        lines.at(0)->trigger();
        QCOMPARE(opened, 1);
        item.setMenu(entries("Resume", false).mid(0, 2));
        QCOMPARE(menu->actions().size(), 2);
    }

    void shouldUseTheOldTrayOnlyWhileNoHostShowsTheItem()
    {
        FakeWatcher watcher;
        watcher.hasHost = false;
        watcher.come();
        RecordingItem *fallback = nullptr;
        DesktopStatusItem item(std::make_unique<StatusNotifierItem>(QDBusConnection::sessionBus()),
                               [&fallback] {
                                   auto made = std::make_unique<RecordingItem>();
                                   fallback = made.get();
                                   return made;
                               });
        item.setLook(someLook());
        item.setMenu({{.title = QStringLiteral("Open"), .isChecked = {}, .action = {}}});
        QSignalSpy activated(&item, &StatusItem::activated);
        QTRY_COMPARE(RecordingItem::shown, 1);
        QCOMPARE(fallback->look.toolTip, someLook().toolTip); // also what was set before it came
        QCOMPARE(fallback->entries.size(), 1);
        QCOMPARE(item.place(), std::optional(QRect(5, 6, 22, 22)));
        Q_EMIT fallback->activated();
        QCOMPARE(activated.size(), 1);

        watcher.hasHost = true;
        Q_EMIT watcher.StatusNotifierHostRegistered();
        QTRY_COMPARE(RecordingItem::shown, 0);
        watcher.item(QStringLiteral("Activate"), {1, 1});
        QCOMPARE(activated.size(), 2);
        watcher.leave();
        QTRY_COMPARE(RecordingItem::shown, 1);
    }
};

QTEST_MAIN(StatusItemTest)
#include "StatusItemTest.moc"
