#include "ArrivalChime.h"
#include "DesktopNotificationCenter.h"
#include "DesktopWorkspace.h"
#include "FakeService.h"
#include "ManualScheduler.h"

#include <QDBusArgument>
#include <QDBusServiceWatcher>
#include <QDesktopServices>
#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

namespace {

struct RecordingChime : ArrivalChime
{
    void play(const QString &soundName) override { played << soundName; }

    QStringList played;
};

NotificationRequest request()
{
    return {.identifier = "one",
            .title = "Title",
            .subtitle = "<b>&.png",
            .body = "Body",
            .categoryIdentifier = "ready",
            .action = {.identifier = "show", .title = "Show"},
            .payload = {{"outputPath", "/a"}},
            .soundName = "a.wav",
            .delay = 250ms};
}

} // namespace

class NotificationService : public FakeService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    NotificationService()
        : FakeService("org.freedesktop.Notifications", "/org/freedesktop/Notifications")
    {}

    QStringList capabilities;
    QList<QVariantList> calls;
    uint lastNumber = 0;

public Q_SLOTS:
    QStringList GetCapabilities() const { return capabilities; } // NOLINT(readability-identifier-naming)
    uint Notify(const QString &app, uint replaces, const QString &icon, const QString &title, // NOLINT
                const QString &body, const QStringList &actions, const QVariantMap &hints, int timeout)
    {
        calls << QVariantList{app, replaces, icon, title, body, actions, hints, timeout};
        return replaces != 0 ? replaces : ++lastNumber;
    }
};

class FileManagerService : public FakeService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    FileManagerService()
        : FakeService("org.freedesktop.FileManager1", "/org/freedesktop/FileManager1")
    {}

    QStringList shown;
    QStringList startups;
    QString error; ///< the name of what it answers with; empty: it does as asked

public Q_SLOTS:
    void ShowItems(const QStringList &uris, const QString &startup, const QDBusMessage &message) // NOLINT
    {
        shown += uris;
        startups += startup;
        if (!error.isEmpty()) {
            refuse(message, error);
        }
    }
};

class DesktopServicesTest : public QObject
{
    Q_OBJECT

    void post()
    {
        m_center->add(request());
        m_jobs->advance(250ms);
    }

    std::unique_ptr<NotificationService> m_service;
    std::shared_ptr<ManualScheduler> m_jobs;
    std::shared_ptr<RecordingChime> m_chime;
    std::unique_ptr<DesktopNotificationCenter> m_center;
    QList<NotificationResponse> m_responses;
    QList<QUrl> m_opened;

public Q_SLOTS:
    void open(const QUrl &url) { m_opened << url; }

private Q_SLOTS:
    void init()
    {
        m_service = std::make_unique<NotificationService>();
        m_service->come();
        m_responses.clear();
        m_jobs = std::make_shared<ManualScheduler>();
        m_chime = std::make_shared<RecordingChime>();
        m_center =
            std::make_unique<DesktopNotificationCenter>(QDBusConnection::sessionBus(), m_jobs, m_chime);
        m_center->onResponse([this](const NotificationResponse &response) { m_responses << response; });
    }

    void cleanup()
    {
        m_center.reset();
        m_service.reset();
    }

    void shouldPostAfterTheDelayAndReportClicks()
    {
        m_center->add(request());
        m_jobs->advance(249ms);
        QCOMPARE(m_jobs->waitingJobs(), 1);
        m_jobs->advance(1ms);
        QTRY_COMPARE(m_chime->played, QStringList{"a.wav"});
        QCOMPARE(m_service->calls.size(), 1);
        const QVariantList call = m_service->calls.first();
        QCOMPARE(call[3].toString(), "Title");
        QCOMPARE(call[4].toString(), "<b>&.png\nBody");
        QCOMPARE(call[5].toStringList(), QStringList({"default", QString(), "show", "Show"}));
        const QVariantMap hints = call[6].toMap();
        QCOMPARE(hints.value("suppress-sound"), QVariant(true));
        QVERIFY(!hints.contains("image-data"));
        QCOMPARE(hints.value("x-lumaport-category"), QVariant("ready"));

        const QString action = "ActionInvoked";
        m_service->emitSignal(action, {99U, "default"}); // another program's
        m_service->emitSignal("ActivationToken", {1U, "token"});
        m_service->emitSignal(action, {1U, "show"});
        QTRY_COMPARE(m_responses.size(), 1);
        QCOMPARE(m_responses.first().actionIdentifier, "show");
        QCOMPARE(m_responses.first().payload, request().payload);
        QCOMPARE(m_responses.first().activationToken, "token");

        m_service->emitSignal("NotificationClosed", {1U, 2U});
        m_service->emitSignal(action, {1U, "default"});
        post();
        QTRY_COMPARE(m_service->calls.size(), 2); // whatever was sent before has arrived by now
        QCOMPARE(m_responses.size(), 1);
    }

    void shouldLetNoMoreThanThreeShowAtOnce()
    {
        const auto add = [this](const QString &path) {
            NotificationRequest photo = request();
            photo.identifier = path;
            photo.payload = {{"outputPath", path}};
            m_center->add(photo);
        };
        for (const QString path : {"/1", "/2", "/3", "/4", "/5"}) {
            add(path);
        }
        m_jobs->advance(250ms);
        QTRY_COMPARE(m_chime->played.size(), 5);
        add("/6");
        m_jobs->advance(250ms);
        QTRY_COMPARE(m_chime->played.size(), 6);
        QList<uint> replaced;
        for (const QVariantList &call : std::as_const(m_service->calls)) {
            replaced << call[1].toUInt();
        }
        QCOMPARE(replaced, QList<uint>({0, 0, 0, 1, 2, 3}));
        m_service->emitSignal("ActionInvoked", {1U, "default"});
        QTRY_COMPARE(m_responses.size(), 1);
        QCOMPARE(m_responses.first().payload.value("outputPath"), QVariant("/4"));
    }

    void shouldGiveANotificationItsPictureBeforeAndAfterItShows()
    {
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::red);
        m_center->setImage("one", picture); // unknown yet
        m_center->add(request());
        m_center->setImage("one", picture);
        m_jobs->advance(250ms);
        QTRY_COMPARE(m_chime->played.size(), 1);
        m_center->setImage("one", picture.copy(0, 0, 1, 2));
        NotificationRequest second = request();
        second.identifier = "two";
        m_center->add(second);
        m_jobs->advance(250ms);
        m_center->setImage("two", picture.copy(0, 0, 1, 2)); // while the service is asked
        QTRY_COMPARE(m_service->calls.size(), 4);
        QCOMPARE(m_service->calls[1][1].toUInt(), 1U);
        QCOMPARE(m_service->calls[3][1].toUInt(), 2U);
        QCOMPARE(m_chime->played.size(), 2);
        for (const int i : {0, 1, 3}) {
            const auto data = m_service->calls[i][6].toMap().value("image-data").value<QDBusArgument>();
            int width = 0;
            int height = 0;
            int stride = 0;
            bool hasAlpha = false;
            int bits = 0;
            int channels = 0;
            QByteArray bytes;
            data.beginStructure();
            data >> width >> height >> stride >> hasAlpha >> bits >> channels >> bytes;
            data.endStructure();
            QCOMPARE(QSize(width, height), QSize(i == 0 ? 3 : 1, 2));
            QVERIFY(stride == 4 * width && hasAlpha && bits == 8 && channels == 4);
            QCOMPARE(bytes, QByteArray("\xff\0\0\xff", 4).repeated(qsizetype(width) * height));
        }
    }

    void shouldEscapeNamesForMarkupAndForgetAServiceThatIsGone()
    {
        m_service->capabilities << "body-markup";
        post();
        QTRY_COMPARE(m_chime->played.size(), 1);
        QCOMPARE(m_service->calls.last()[4].toString(), "&lt;b&gt;&amp;.png\nBody");

        const QDBusServiceWatcher watcher("org.freedesktop.Notifications", QDBusConnection::sessionBus());
        QSignalSpy changes(&watcher, &QDBusServiceWatcher::serviceOwnerChanged);
        m_service->leave();
        m_service->capabilities.clear();
        m_service->come();
        QTRY_COMPARE(changes.size(), 2); // the center has heard of it before
        m_service->emitSignal("ActionInvoked", {1U, "show"});
        post();
        QTRY_COMPARE(m_service->calls.size(), 2);
        QCOMPARE(m_service->calls.last()[4].toString(), "<b>&.png\nBody");
        QVERIFY(m_responses.isEmpty()); // the number 1 was another service's
    }

    void shouldRevealThroughTheFileManagerElseOpenTheFolder()
    {
        QDesktopServices::setUrlHandler("file", this, "open");
        FileManagerService manager;
        manager.come();
        DesktopWorkspace workspace(QDBusConnection::sessionBus());
        const auto reveal = [&](const QString &file, const QString &error) {
            const auto before = manager.shown.size();
            manager.error = error;
            workspace.reveal(QUrl::fromLocalFile(file), "token");
            QTRY_COMPARE(manager.shown.size(), before + 1);
        };
        reveal("/done/Ö 1#.png", "");
        QCOMPARE(manager.shown, QStringList{"file:///done/%C3%96%201%23.png"});
        QCOMPARE(manager.startups, QStringList{"token"});
        reveal("/slow/1.png", "org.freedesktop.DBus.Error.NoReply");
        reveal("/refused/1.png", "org.freedesktop.DBus.Error.Failed");
        // Answers come in order: what the first ones might have opened would stand before this.
        QTRY_COMPARE(m_opened, QList{QUrl("file:///refused/")});

        DesktopWorkspace busless(QDBusConnection("no bus"));
        busless.reveal(QUrl::fromLocalFile("/alone/1.png"), QString());
        QCOMPARE(m_opened.last(), QUrl("file:///alone/"));
        QDesktopServices::unsetUrlHandler("file");
    }
};

QTEST_MAIN(DesktopServicesTest)
#include "DesktopServicesTest.moc"
