#include "ModelFixture.h"
#include "WriteFile.h"

#include <QRegularExpression>
#include <QTest>

class NotificationManagerTest : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingNotificationCenter> m_center;
    std::shared_ptr<RecordingWorkspace> m_workspace;
    std::optional<NotificationManager> m_manager;
    ThumbnailStore m_thumbnails{std::make_shared<FakeImageWorkerLauncher>()};

private Q_SLOTS:
    void init()
    {
        m_center = std::make_shared<RecordingNotificationCenter>();
        m_workspace = std::make_shared<RecordingWorkspace>();
        m_manager.emplace(m_center, m_workspace);
        ThumbnailStore::setShared(&m_thumbnails);
    }

    void shouldAnnounceEachPhotoByItself()
    {
        const QUrl photo = QUrl::fromLocalFile("/home/a/Übung 1.png");
        m_manager->notifyConversionFinished(photo);
        m_manager->notifyConversionFinished(photo);
        const NotificationRequest first = m_center->requests[0];
        QCOMPARE(first.title, "Photo landed ready");
        QCOMPARE(first.subtitle, "Übung 1.png");
        QCOMPARE(first.body, "Converted locally. Click to reveal it in Finder.");
        QCOMPARE(first.categoryIdentifier, "LUMAPORT_CONVERSION_READY");
        QCOMPARE(first.action.identifier, "LUMAPORT_SHOW_IN_FINDER");
        QCOMPARE(first.action.title, "Show in Finder");
        QCOMPARE(first.payload, (QVariantMap{{"outputPath", "/home/a/Übung 1.png"}}));
        QCOMPARE(first.delay, std::chrono::milliseconds(250));
        QCOMPARE(first.soundName, "LumaportArrival.wav");
        const QRegularExpression identifier("^lumaport-ready-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$");
        QVERIFY(identifier.match(first.identifier).hasMatch());
        QVERIFY(first.identifier != m_center->requests[1].identifier);
    }

    void shouldGiveTheNotificationTheCopysThumbnail()
    {
        const QTemporaryDir folder;
        const QUrl photo = writeFile(folder.filePath("1.png"), "red");
        m_manager->notifyConversionFinished(photo);
        QTRY_COMPARE(m_center->images.size(), 1);
        m_manager->notifyConversionFinished(photo); // in memory by now
        QCOMPARE(m_center->images.size(), 2);
        for (const NotificationRequest &request : std::as_const(m_center->requests)) {
            QCOMPARE(m_center->images.value(request.identifier).pixelColor(1, 1), QColor(Qt::red));
        }
    }

    void shouldRevealOnAClickOnly()
    {
        m_manager->configure();
        const QString click = NotificationCenter::defaultAction;
        const QVariantMap payload{{"outputPath", "/home/a/1.png"}};
        m_center->respond({.actionIdentifier = "dismissed", .payload = payload});
        m_center->respond({.actionIdentifier = click, .payload = {}});
        m_center->respond({.actionIdentifier = click, .payload = {{"outputPath", 3}}});
        QVERIFY(m_workspace->revealed.isEmpty());
        m_center->respond({.actionIdentifier = click, .payload = payload});
        m_center->respond({"LUMAPORT_SHOW_IN_FINDER", payload, "token"});
        QCOMPARE(m_workspace->tokens, (QStringList{"", "token"}));
        QCOMPARE(m_workspace->revealed, QList<QUrl>(2, QUrl("file:///home/a/1.png")));
    }
};

QTEST_GUILESS_MAIN(NotificationManagerTest)
#include "NotificationManagerTest.moc"
