#include "DesktopStatusItem.h"
#include "FakeService.h"
#include "RecordingStatusItem.h"
#include "StatusNotifierItem.h"
#include "StatusNotifierMenu.h"
#include "TrayIconItem.h"

#include <QApplication>
#include <QDBusPendingCallWatcher>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

/// A panel's side of the bus.
class FakeWatcher : public FakeService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost)

public:
    FakeWatcher()
        : FakeService("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher")
    {}

    /// Calls what registered itself last, and waits for the answer.
    QVariantList call(const QString &path, const QString &interface, const QString &method,
                      const QVariantList &arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(items.last(), path, interface, method);
        message.setArguments(arguments);
        QDBusPendingCallWatcher watcher(bus.asyncCall(message));
        QSignalSpy finished(&watcher, &QDBusPendingCallWatcher::finished);
        finished.wait();
        return watcher.reply().arguments();
    }
    void activate(int x, int y)
    {
        call("/StatusNotifierItem", "org.kde.StatusNotifierItem", "Activate", {x, y});
    }
    QVariantList menu(const QString &method, const QVariantList &arguments)
    {
        return call(StatusNotifierMenu::objectPath, "com.canonical.dbusmenu", method, arguments);
    }

    bool hasHost = true;
    QStringList items;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service) // NOLINT(readability-identifier-naming)
    {
        items.append(service);
    }
};

namespace {

StatusItemLook someLook()
{
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, QColor(0x80, 0x40, 0x20, 0xFF));
    image.setPixelColor(1, 0, QColor(0xFF, 0xFF, 0xFF, 0x80));
    return {.images = {image, image.scaled(4, 2)},
            .toolTip = "Lumaport: Auto-convert: On",
            .accessibilityLabel = "Lumaport, Auto-convert: On"};
}

} // namespace

class StatusItemTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<FakeWatcher> m_watcher;
    std::unique_ptr<StatusNotifierItem> m_item;

private Q_SLOTS:
    void init()
    {
        m_watcher = std::make_unique<FakeWatcher>();
        m_watcher->come();
        m_item = std::make_unique<StatusNotifierItem>(QDBusConnection::sessionBus());
        QTRY_COMPARE(m_watcher->items.size(), 1);
    }

    void cleanup()
    {
        m_item.reset();
        m_watcher.reset();
    }

    void shouldShowItsLookOnTheBus()
    {
        m_item->setLook(someLook());
        const QVariantList all = m_watcher->call("/StatusNotifierItem", "org.freedesktop.DBus.Properties",
                                                 "GetAll", {"org.kde.StatusNotifierItem"});
        const auto properties = qdbus_cast<QVariantMap>(all.value(0));
        QCOMPARE(properties.value("Id").toString(), "io.lumaport.Lumaport");
        QCOMPARE(properties.value("Status").toString(), "Active");
        QCOMPARE(properties.value("ItemIsMenu"), QVariant(false));
        QCOMPARE(properties.value("IconAccessibleDesc").toString(), "Lumaport, Auto-convert: On");
        const auto toolTip = qdbus_cast<StatusNotifierToolTip>(properties.value("ToolTip"));
        QCOMPARE(toolTip.title, "Lumaport");
        QCOMPARE(toolTip.text, "Lumaport: Auto-convert: On");

        const auto pixmaps = qdbus_cast<StatusNotifierPixmaps>(properties.value("IconPixmap"));
        QCOMPARE(pixmaps.size(), 2);
        QCOMPARE(pixmaps.at(1).width, 4);
        QCOMPARE(pixmaps.at(0).height, 1);
        // Alpha first, whatever the machine's byte order, and colours not multiplied by it.
        QCOMPARE(pixmaps.at(0).bytes.toHex(), QByteArray("ff80402080ffffff"));
    }

    void shouldTellWhereItWasClicked()
    {
        QSignalSpy activated(m_item.get(), &StatusItem::activated);
        QVERIFY(!m_item->place());
        m_watcher->activate(700, 12);
        QCOMPARE(activated.size(), 1);
        QCOMPARE(m_item->place(), std::optional(QRect(700, 12, 1, 1)));
        // A host that does not know says 0, 0: an old place must not stay.
        m_watcher->activate(0, 0);
        QCOMPARE(activated.size(), 2);
        QVERIFY(!m_item->place());
    }

    void shouldOfferItsMenuOnTheBus()
    {
        int opened = 0;
        const auto open = [&opened] { ++opened; };
        m_item->setMenu({{.title = "Open _it", .action = open},
                         {.kind = StatusMenuEntry::Kind::separator},
                         {.title = "PNG", .isChecked = true},
                         {.title = "Reveal", .isEnabled = false, .action = open}});

        const QVariantList layout = m_watcher->menu("GetLayout", {0, -1, QStringList()});
        QCOMPARE(layout.size(), 2);
        QVERIFY(layout.at(0).toUInt() > 1); // it changed since the start
        const auto root = qdbus_cast<StatusNotifierMenuNode>(layout.at(1));
        const QList<QVariantMap> lines{
            {{"label", "Open __it"}, {"enabled", true}},
            {{"type", "separator"}},
            {{"label", "PNG"}, {"enabled", true}, {"toggle-type", "radio"}, {"toggle-state", 1}},
            {{"label", "Reveal"}, {"enabled", false}}};
        QCOMPARE(root.children.size(), lines.size());
        for (qsizetype line = 0; line < lines.size(); ++line) {
            QCOMPARE(root.children.at(line).properties, lines.at(line));
        }

        const auto answered = [this](const QList<int> &ids) {
            const QVariantList properties =
                m_watcher->menu("GetGroupProperties", {QVariant::fromValue(ids), QStringList()});
            return qdbus_cast<StatusNotifierMenuProperties>(properties.value(0)).size();
        };
        QCOMPARE(answered({1, 4, 99}), 2);
        QCOMPARE(answered({}), 5); // all of them, and the root

        const auto event = [this](int id, const QString &kind) {
            m_watcher->menu("Event", {id, kind, QVariant::fromValue(QDBusVariant(QString())), 0U});
        };
        event(root.children.at(0).id, "hovered");
        QCOMPARE(opened, 0);
        event(root.children.at(0).id, "clicked");
        QCOMPARE(opened, 1);
        event(root.children.at(3).id, "clicked"); // is not enabled
        event(99, "clicked");
        QCOMPARE(opened, 1);
    }

    void shouldChangeTheOldTraysMenuInPlace()
    {
        TrayIconItem item;
        int chosen = 0;
        const auto choose = [&chosen] { ++chosen; };
        const auto entries = [&](const QString &title, bool isPng) {
            return QList<StatusMenuEntry>{{.title = title, .action = choose},
                                          {.kind = StatusMenuEntry::Kind::separator},
                                          {.title = "PNG", .isChecked = isPng, .action = choose},
                                          {.title = "JPEG", .isChecked = !isPng, .action = choose}};
        };
        item.setMenu(entries("Pause", true));
        const auto *menu = qobject_cast<QMenu *>(QApplication::topLevelWidgets().constFirst());
        QVERIFY(menu);
        const QList<QAction *> lines = menu->actions();
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines.at(1)->isSeparator());
        lines.at(2)->trigger(); // one of the two holds, also when it is chosen again
        QVERIFY(lines.at(2)->isChecked());
        QCOMPARE(chosen, 1);

        item.setMenu(entries("Resume", false)); // as under the pointer
        QCOMPARE(menu->actions(), lines);
        QCOMPARE(lines.at(0)->text(), "Resume");
        QVERIFY(lines.at(3)->isChecked() && !lines.at(2)->isChecked());
        lines.at(0)->trigger();
        QCOMPARE(chosen, 2);
        item.setMenu(entries("Resume", false).mid(0, 2));
        QCOMPARE(menu->actions().size(), 2);
    }

    void shouldUseTheOldTrayOnlyWhileNoHostShowsTheItem()
    {
        m_watcher->hasHost = false;
        m_item.reset();
        QPointer<RecordingStatusItem> fallback; // null when it is gone
        DesktopStatusItem item(std::make_unique<StatusNotifierItem>(QDBusConnection::sessionBus()),
                               [&fallback] {
                                   auto made = std::make_unique<RecordingStatusItem>();
                                   made->placeOnScreen = QRect(5, 6, 22, 22);
                                   fallback = made.get();
                                   return made;
                               });
        item.setLook(someLook());
        item.setMenu({{.title = "Open"}});
        QSignalSpy activated(&item, &StatusItem::activated);
        QTRY_VERIFY(fallback);
        QCOMPARE(fallback->look.toolTip, someLook().toolTip); // also what was set before it came
        QCOMPARE(fallback->entries.size(), 1);
        QCOMPARE(item.place(), std::optional(QRect(5, 6, 22, 22)));
        Q_EMIT fallback->activated();
        QCOMPARE(activated.size(), 1);

        m_watcher->hasHost = true;
        m_watcher->emitSignal("StatusNotifierHostRegistered");
        QTRY_VERIFY(!fallback);
        m_watcher->activate(1, 1);
        QCOMPARE(activated.size(), 2);
        m_watcher->leave();
        QTRY_VERIFY(fallback);
        const auto registrations = m_watcher->items.size();
        m_watcher->come();
        QTRY_VERIFY(!fallback);
        QVERIFY(m_watcher->items.last().startsWith("org.kde.StatusNotifierItem-"));
        QVERIFY(m_watcher->items.size() > registrations);
    }
};

QTEST_MAIN(StatusItemTest)
#include "StatusItemTest.moc"
