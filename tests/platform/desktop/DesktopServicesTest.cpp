#include "ArrivalChime.h"
#include "DesktopNotificationCenter.h"
#include "DesktopWorkspace.h"
#include "ManualScheduler.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDesktopServices>
#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

namespace {

const QString notifications = QStringLiteral("org.freedesktop.Notifications");
const QString fileManager = QStringLiteral("org.freedesktop.FileManager1");

struct RecordingChime : ArrivalChime
{
    void play(const QString &soundName) override { played << soundName; }

    QStringList played;
};

} // namespace

/// The services' side, on a connection of its own.
class NotificationService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public Q_SLOTS:
    QStringList GetCapabilities() const { return capabilities; } // NOLINT(readability-identifier-naming)
    uint Notify(const QString &app, uint replaces, const QString &icon, const QString &title, // NOLINT
                const QString &body, const QStringList &actions, const QVariantMap &hints, int timeout)
    {
        calls << QVariantList{app, replaces, icon, title, body, actions, hints, timeout};
        return static_cast<uint>(calls.size());
    }

public:
    QStringList capabilities;
    QList<QVariantList> calls;
};

class FileManagerService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public Q_SLOTS:
    void ShowItems(const QStringList &uris, const QString &startup, const QDBusMessage &message) // NOLINT
    {
        shown += uris;
        startups += startup;
        if (!error.isEmpty()) {
            message.setDelayedReply(true);
            QDBusConnection(QStringLiteral("services")).send(message.createErrorReply(error, QString()));
        }
    }

public:
    QStringList shown;
    QStringList startups;
    QString error; ///< the name of what it answers with; empty: it does as asked
};

/// What opens a URL when no file manager answers.
class FallbackHandler : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void open(const QUrl &url) { opened << url; }

public:
    QList<QUrl> opened;
};

class DesktopServicesTest : public QObject
{
    Q_OBJECT

private:
    QDBusConnection serviceSide() const { return QDBusConnection(QStringLiteral("services")); }
    void emitSignal(const QString &name, const QVariantList &arguments) const
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"), notifications, name);
        signal.setArguments(arguments);
        QVERIFY(serviceSide().send(signal));
    }
    void startNotificationService()
    {
        QVERIFY(serviceSide().registerObject(QStringLiteral("/org/freedesktop/Notifications"), &m_service,
                                             QDBusConnection::ExportAllSlots));
        QVERIFY(serviceSide().registerService(notifications));
    }
    void startFileManager(FileManagerService &manager) const
    {
        QVERIFY(serviceSide().registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &manager,
                                             QDBusConnection::ExportAllSlots));
        QVERIFY(serviceSide().registerService(fileManager));
    }
    static NotificationRequest request()
    {
        return {.identifier = QStringLiteral("one"),
                .title = QStringLiteral("Title"),
                .subtitle = QStringLiteral("<b>&.png"),
                .body = QStringLiteral("Body"),
                .categoryIdentifier = QStringLiteral("ready"),
                .payload = {{QStringLiteral("outputPath"), QStringLiteral("/a")}},
                .soundName = QStringLiteral("a.wav"),
                .image = QUrl::fromLocalFile(QStringLiteral("/a 1.png")),
                .delay = 250ms};
    }

    NotificationService m_service;
    std::shared_ptr<ManualScheduler> m_jobs;
    std::shared_ptr<RecordingChime> m_chime;
    std::unique_ptr<DesktopNotificationCenter> m_center;
    QList<NotificationResponse> m_responses;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("services"))
                    .isConnected());
    }

    void init()
    {
        m_service.capabilities.clear();
        m_service.calls.clear();
        m_responses.clear();
        m_jobs = std::make_shared<ManualScheduler>();
        m_chime = std::make_shared<RecordingChime>();
        m_center =
            std::make_unique<DesktopNotificationCenter>(QDBusConnection::sessionBus(), m_jobs, m_chime);
        m_center->setCategories(
            {{.identifier = QStringLiteral("ready"),
              .actions = {{.identifier = QStringLiteral("show"), .title = QStringLiteral("Show")}}}});
        m_center->onResponse([this](const NotificationResponse &response) { m_responses << response; });
    }

    void cleanup()
    {
        serviceSide().unregisterService(notifications);
        serviceSide().unregisterObject(QStringLiteral("/org/freedesktop/Notifications"));
        serviceSide().unregisterService(fileManager);
        serviceSide().unregisterObject(QStringLiteral("/org/freedesktop/FileManager1"));
    }

    void shouldPostAfterTheDelayAndReportClicks()
    {
        startNotificationService();
        m_center->add(request());
        m_jobs->advance(249ms);
        QCOMPARE(m_jobs->waitingJobs(), 1);
        m_jobs->advance(1ms);
        QTRY_COMPARE(m_chime->played, QStringList{QStringLiteral("a.wav")});
        QCOMPARE(m_service.calls.size(), 1);
        const QVariantList call = m_service.calls.first();
        QCOMPARE(call[3].toString(), QStringLiteral("Title"));
        QCOMPARE(call[4].toString(), QStringLiteral("<b>&.png\nBody"));
        QCOMPARE(call[5].toStringList(), QStringList({QStringLiteral("default"), QString(),
                                                      QStringLiteral("show"), QStringLiteral("Show")}));
        const QVariantMap hints = call[6].toMap();
        QCOMPARE(hints.value(QStringLiteral("suppress-sound")), QVariant(true));
        QCOMPARE(hints.value(QStringLiteral("image-path")), QVariant(QStringLiteral("file:///a%201.png")));

        emitSignal(QStringLiteral("ActionInvoked"), {99U, QStringLiteral("default")}); // another program's
        emitSignal(QStringLiteral("ActivationToken"), {1U, QStringLiteral("token")});
        emitSignal(QStringLiteral("ActionInvoked"), {1U, QStringLiteral("show")});
        QTRY_COMPARE(m_responses.size(), 1);
        QCOMPARE(m_responses.first().actionIdentifier, QStringLiteral("show"));
        QCOMPARE(m_responses.first().payload, request().payload);
        QCOMPARE(m_responses.first().activationToken, QStringLiteral("token"));

        emitSignal(QStringLiteral("NotificationClosed"), {1U, 2U});
        emitSignal(QStringLiteral("ActionInvoked"), {1U, QStringLiteral("default")});
        m_center->add(request());
        m_jobs->advance(250ms);
        QTRY_COMPARE(m_service.calls.size(), 2); // whatever was sent before has arrived by now
        QCOMPARE(m_responses.size(), 1);
    }

    void shouldEscapeNamesForAServiceThatReadsMarkup()
    {
        startNotificationService();
        m_service.capabilities << QStringLiteral("body-markup");
        m_center->add(request());
        m_jobs->advance(250ms);
        QTRY_COMPARE(m_service.calls.size(), 1);
        QCOMPARE(m_service.calls.first()[4].toString(), QStringLiteral("&lt;b&gt;&amp;.png\nBody"));
    }

    void shouldForgetWhatAServiceShowedThatIsGone()
    {
        startNotificationService();
        m_service.capabilities << QStringLiteral("body-markup");
        m_center->add(request());
        m_jobs->advance(250ms);
        QTRY_COMPARE(m_chime->played.size(), 1);

        const QDBusServiceWatcher watcher(notifications, QDBusConnection::sessionBus(),
                                          QDBusServiceWatcher::WatchForOwnerChange);
        QSignalSpy changes(&watcher, &QDBusServiceWatcher::serviceOwnerChanged);
        QVERIFY(serviceSide().unregisterService(notifications));
        m_service.capabilities.clear();
        QVERIFY(serviceSide().registerService(notifications));
        QTRY_COMPARE(changes.size(), 2); // the center has heard of it before
        emitSignal(QStringLiteral("ActionInvoked"), {1U, QStringLiteral("show")}); // another program's now
        m_center->add(request());
        m_jobs->advance(250ms);
        QTRY_COMPARE(m_service.calls.size(), 2);
        QCOMPARE(m_service.calls.last()[4].toString(), QStringLiteral("<b>&.png\nBody"));
        QVERIFY(m_responses.isEmpty());
    }

    void shouldStaySilentWithoutABus()
    {
        DesktopNotificationCenter center(QDBusConnection(QStringLiteral("no bus")), m_jobs, m_chime);
        center.add(request());
        m_jobs->advance(250ms);
        QCoreApplication::processEvents();
        QVERIFY(m_chime->played.isEmpty());
    }

    void shouldRevealThroughTheFileManager()
    {
        FileManagerService manager;
        startFileManager(manager);
        DesktopWorkspace workspace(QDBusConnection::sessionBus());
        workspace.reveal(QUrl::fromLocalFile(QStringLiteral("/home/a/Ö 1#.png")), QStringLiteral("token"));
        QTRY_COMPARE(manager.shown, QStringList{QStringLiteral("file:///home/a/%C3%96%201%23.png")});
        QCOMPARE(manager.startups, QStringList{QStringLiteral("token")});
    }

    void shouldOpenTheFolderWhereTheFileManagerRefuses()
    {
        FallbackHandler handler;
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &handler, "open");
        FileManagerService manager;
        startFileManager(manager);
        DesktopWorkspace workspace(QDBusConnection::sessionBus());
        const auto reveal = [&](const QString &folder, const QString &error) {
            manager.error = error;
            workspace.reveal(QUrl::fromLocalFile(folder + QStringLiteral("/1.png")), QString());
            QTRY_COMPARE(manager.shown.size(), 1);
            manager.shown.clear();
        };
        reveal(QStringLiteral("/slow"), QStringLiteral("org.freedesktop.DBus.Error.NoReply"));
        reveal(QStringLiteral("/refused"), QStringLiteral("org.freedesktop.DBus.Error.Failed"));
        // Answers come in order: what the first one might have opened would stand before this.
        QTRY_COMPARE(handler.opened, QList{QUrl(QStringLiteral("file:///refused/"))});
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    }

    void shouldOpenTheFolderWhereNoFileManagerAnswers()
    {
        FallbackHandler handler;
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &handler, "open");
        DesktopWorkspace workspace(QDBusConnection(QStringLiteral("no bus")));
        workspace.reveal(QUrl::fromLocalFile(QStringLiteral("/home/a/1.png")), QString());
        QTRY_COMPARE(handler.opened, QList{QUrl(QStringLiteral("file:///home/a/"))});
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    }
};

QTEST_MAIN(DesktopServicesTest)
#include "DesktopServicesTest.moc"
