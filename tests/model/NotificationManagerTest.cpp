#include "ModelFixture.h"

#include <QRegularExpression>
#include <QTest>

class NotificationManagerTest : public QObject
{
    Q_OBJECT

private:
    std::shared_ptr<RecordingNotificationCenter> m_center;
    std::shared_ptr<RecordingWorkspace> m_workspace;
    std::unique_ptr<NotificationManager> m_manager;

private Q_SLOTS:
    void init()
    {
        m_center = std::make_shared<RecordingNotificationCenter>();
        m_workspace = std::make_shared<RecordingWorkspace>();
        m_manager = std::make_unique<NotificationManager>(m_center, m_workspace);
    }

    void shouldAnnounceEachPhotoByItself()
    {
        const QUrl photo = QUrl::fromLocalFile(QStringLiteral("/home/a/Übung 1.png"));
        m_manager->notifyConversionFinished(photo);
        m_manager->notifyConversionFinished(photo);
        const NotificationRequest first = m_center->requests[0];
        QCOMPARE(first.title, QStringLiteral("Photo landed ready"));
        QCOMPARE(first.subtitle, QStringLiteral("Übung 1.png"));
        QCOMPARE(first.body, QStringLiteral("Converted locally. Click to reveal it in Finder."));
        QCOMPARE(first.categoryIdentifier, QStringLiteral("LUMAPORT_CONVERSION_READY"));
        QCOMPARE(first.action.identifier, QStringLiteral("LUMAPORT_SHOW_IN_FINDER"));
        QCOMPARE(first.action.title, QStringLiteral("Show in Finder"));
        QCOMPARE(first.payload,
                 (QVariantMap{{QStringLiteral("outputPath"), QStringLiteral("/home/a/Übung 1.png")}}));
        QCOMPARE(first.delay, std::chrono::milliseconds(250));
        QCOMPARE(first.soundName, QStringLiteral("LumaportArrival.wav"));
        const QRegularExpression identifier(
            QStringLiteral("^lumaport-ready-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"));
        QVERIFY(identifier.match(first.identifier).hasMatch());
        QVERIFY(first.identifier != m_center->requests[1].identifier);
    }

    void shouldRevealOnAClickOnly()
    {
        m_manager->configure();
        const QVariantMap payload{{QStringLiteral("outputPath"), QStringLiteral("/home/a/1.png")}};
        m_center->respond({.actionIdentifier = QStringLiteral("dismissed"), .payload = payload});
        m_center->respond({.actionIdentifier = NotificationCenter::defaultAction, .payload = {}});
        m_center->respond({.actionIdentifier = NotificationCenter::defaultAction,
                           .payload = {{QStringLiteral("outputPath"), 3}}});
        QVERIFY(m_workspace->revealed.isEmpty());
        m_center->respond({.actionIdentifier = NotificationCenter::defaultAction, .payload = payload});
        m_center->respond({.actionIdentifier = QStringLiteral("LUMAPORT_SHOW_IN_FINDER"),
                           .payload = payload,
                           .activationToken = QStringLiteral("token")});
        QCOMPARE(m_workspace->tokens, QStringList({QString(), QStringLiteral("token")}));
        QCOMPARE(m_workspace->revealed, QList<QUrl>(2, QUrl(QStringLiteral("file:///home/a/1.png"))));
    }
};

QTEST_GUILESS_MAIN(NotificationManagerTest)
#include "NotificationManagerTest.moc"
