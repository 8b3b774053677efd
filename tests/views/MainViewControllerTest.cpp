#include "MainViewController.h"

#include "ConversionError.h"
#include "DefaultsStore.h"
#include "ModelFixture.h"

#include <QSignalSpy>
#include <QTest>

class MainViewControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<ModelFixture>();
        m_fixture->launch();
        m_controller = controller();
    }

    void cleanup()
    {
        m_controller.reset();
        m_fixture.reset();
    }

    void shouldFitTheStageIntoTheRoomThatIsLeft_data()
    {
        QTest::addColumn<double>("workspaceHeight");
        QTest::addColumn<double>("optionsShown");
        QTest::addColumn<bool>("compact");
        QTest::addColumn<double>("stageHeight");
        QTest::newRow("compact") << 620.0 << 0.0 << true << 190.0;
        QTest::newRow("compact with the options") << 620.0 << 1.0 << true << 166.0;
        QTest::newRow("while the options slide") << 620.0 << 0.5 << true << 178.0;
        QTest::newRow("just compact") << 649.0 << 0.0 << true << 219.0;
        QTest::newRow("just not compact") << 650.0 << 0.0 << false << 190.0;
        QTest::newRow("not taller than it was designed") << 1000.0 << 1.0 << false << 222.0;
        QTest::newRow("never gone") << 480.0 << 0.0 << true << 60.0;
    }

    void shouldFitTheStageIntoTheRoomThatIsLeft()
    {
        QFETCH(double, workspaceHeight);
        QFETCH(double, optionsShown);
        QTEST(MainViewController::isCompact(workspaceHeight), "compact");
        QTEST(MainViewController::stageHeight(workspaceHeight, optionsShown), "stageHeight");
    }

    void shouldTellOfAConversionFromLandingToReady()
    {
        AppModel &model = m_fixture->model();
        QCOMPARE(m_controller->headline(), QStringLiteral("AirDrop it. It’s ready."));
        QCOMPARE(m_controller->workspaceDetail(),
                 QStringLiteral("New HEIC photos in your watched folder become PNG, automatically."));

        QSignalSpy texts(m_controller.get(), &MainViewController::textsChanged);
        model.convertManually({m_fixture->write(QStringLiteral("IMG_1.HEIC"))});
        QCOMPARE(m_controller->headline(), QStringLiteral("Your photo just landed."));
        QCOMPARE(m_controller->workspaceDetail(), QStringLiteral("IMG_1.HEIC landed"));
        QVERIFY(m_controller->isBusy());

        ModelFixture::turn();
        QCOMPARE(m_controller->headline(), QStringLiteral("A little format magic."));
        QCOMPARE(m_controller->readyText(), QStringLiteral("0 ready"));

        texts.clear();
        m_fixture->engine->succeed(QStringLiteral("IMG_1.png"));
        QVERIFY(!texts.isEmpty());
        QCOMPARE(m_controller->headline(), QStringLiteral("New format. Same moment."));
        QCOMPARE(m_controller->workspaceDetail(), QStringLiteral("Ready: IMG_1.png"));
        QCOMPARE(m_controller->readyText(), QStringLiteral("1 ready"));
        QVERIFY(!m_controller->isBusy());

        texts.clear();
        m_fixture->jobs->advance(std::chrono::seconds(4));
        QVERIFY(!texts.isEmpty());
        QCOMPARE(m_controller->headline(), QStringLiteral("AirDrop it. It’s ready."));
    }

    void shouldTellOfAFailure()
    {
        m_fixture->model().convertManually({m_fixture->write(QStringLiteral("IMG_2.heic"))});
        ModelFixture::turn();
        m_fixture->engine->fail(ConversionError::unreadableImage);
        QCOMPARE(m_controller->headline(), QStringLiteral("This photo needs attention."));
        QCOMPARE(m_controller->workspaceDetail(), QStringLiteral("Couldn’t convert IMG_2.heic"));
    }

    void shouldGreetADragEvenDuringAConversion()
    {
        m_fixture->model().convertManually({m_fixture->write(QStringLiteral("IMG_1.HEIC"))});
        QVERIFY(m_controller->dragEntered({m_fixture->url(QStringLiteral("IMG_9.HEIC"))}));
        QCOMPARE(m_controller->headline(), QStringLiteral("Drop it. We’ve got it."));
        QCOMPARE(m_controller->workspaceDetail(), QStringLiteral("IMG_1.HEIC landed"));
        m_controller->dragLeft();
        QCOMPARE(m_controller->headline(), QStringLiteral("Your photo just landed."));
    }

    void shouldNameTheFormatThatPhotosBecome()
    {
        ConversionSettings settings;
        settings.format = OutputFormat::jpeg;
        settings.outputLocation = OutputLocation::alongside;
        m_fixture->model().setSettings(settings);
        QCOMPARE(m_controller->workspaceDetail(),
                 QStringLiteral("New HEIC photos in your watched folder become JPEG, automatically."));
        QCOMPARE(m_controller->outputLocationText(), QStringLiteral("Beside originals"));
    }

    void shouldSayThatItIsPaused()
    {
        m_fixture->model().setIsWatching(false);
        QCOMPARE(m_controller->headline(), QStringLiteral("Ready when you are."));
        QCOMPARE(m_controller->workspaceDetail(),
                 QStringLiteral("Resume automatic conversion, or choose photos manually."));
    }

    void shouldAskForAnotherFolderBeforeItSpeaksOfAPause()
    {
        m_fixture->defaults->store(QStringLiteral("watchFolder"),
                                   m_fixture->home.filePath(QStringLiteral("gone")));
        m_controller.reset();
        m_fixture->launch().setIsWatching(false);
        m_controller = controller();
        QCOMPARE(m_controller->headline(), QStringLiteral("Let’s reconnect your folder."));
        QCOMPARE(m_controller->workspaceDetail(),
                 QStringLiteral("Open conversion options to choose an available folder."));
        QCOMPARE(m_controller->openFolderLabel(), QStringLiteral("Open watched folder: gone"));
        QCOMPARE(m_controller->watchFolderPath(), m_fixture->home.filePath(QStringLiteral("gone")));
    }

    void shouldAcceptADropWithAtLeastOnePhotoAndPassOnAllOfIt()
    {
        const QUrl photo = m_fixture->write(QStringLiteral("IMG_1.HEIC"));
        const QUrl text = m_fixture->write(QStringLiteral("notes.txt"));
        QVERIFY(m_controller->dragEntered({photo, text}));
        QVERIFY(m_controller->drop({text, photo}));
        QVERIFY(!m_controller->isDropTargeted());
        QCOMPARE(m_fixture->model().items().size(), 1);
        QCOMPARE(m_fixture->model().items().constFirst().sourceURL, photo);
    }

    void shouldRefuseADropWithoutPhotosButTellTheUser()
    {
        QVERIFY(m_controller->dragEntered({m_fixture->url(QStringLiteral("holiday.jpg"))}));
        QVERIFY(
            !m_controller->drop({m_fixture->url(QStringLiteral("holiday.jpg")), m_fixture->url(QString())}));
        QVERIFY(!m_controller->drop({m_fixture->url(QStringLiteral("holiday.jpg")),
                                     QUrl(QStringLiteral("https://example.org/IMG_1.HEIC"))}));
        QCOMPARE(m_fixture->model().lastEventText(), QStringLiteral("Drop HEIC or HEIF photos here"));
        QVERIFY(m_fixture->model().items().isEmpty());
    }

    void shouldNotReactToADragOfAnythingButFiles()
    {
        QVERIFY(!m_controller->dragEntered({QUrl(QStringLiteral("https://example.org/IMG_1.HEIC"))}));
        QVERIFY(!m_controller->dragEntered({}));
        QVERIFY(!m_controller->isDropTargeted());
    }

    void shouldAskForPhotosAndOpenTheFolder()
    {
        m_controller->choosePhotos();
        QCOMPARE(m_fixture->panel->requests.size(), 1);
        QVERIFY(m_fixture->model().items().isEmpty()); // cancelled
        m_fixture->panel->answer = {m_fixture->write(QStringLiteral("IMG_3.HEIF"))};
        m_controller->choosePhotos();
        QCOMPARE(m_fixture->model().items().size(), 1);
        m_controller->openWatchFolder();
        QCOMPARE(m_fixture->workspace->opened, QList{m_fixture->model().watchFolder()});
    }

    void shouldWelcomeOnTheFirstLaunchOnly()
    {
        QVERIFY(m_controller->showsWelcome());
        QSignalSpy changes(m_controller.get(), &MainViewController::showsWelcomeChanged);
        m_controller->finishWelcome();
        QCOMPARE(changes.size(), 1);
        QVERIFY(!m_controller->showsWelcome());
        QCOMPARE(m_fixture->defaults->boolean(QStringLiteral("hasSeenSignatureWelcome")), true);
        QVERIFY(!controller()->showsWelcome()); // the next launch
    }

    void shouldWelcomeAgainOnRequestUntilFinished()
    {
        m_controller->finishWelcome();
        AppModel &model = m_fixture->model();
        model.setWelcomeReplayToken(model.welcomeReplayToken() + 1);
        QVERIFY(m_controller->showsWelcome());
        m_controller->finishWelcome();
        QVERIFY(!m_controller->showsWelcome());
    }

private:
    std::unique_ptr<MainViewController> controller()
    {
        return std::make_unique<MainViewController>(m_fixture->model(), m_fixture->defaults);
    }

    std::unique_ptr<ModelFixture> m_fixture;
    std::unique_ptr<MainViewController> m_controller;
};

QTEST_MAIN(MainViewControllerTest)
#include "MainViewControllerTest.moc"
