#include "MainWindowLayout.h"

#include "DefaultsStore.h"
#include "MainWindowPlacement.h"
#include "ManualScheduler.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

using namespace std::chrono_literals;

namespace {

/// A store of its own, and a layout that keeps its frames there.
struct LayoutFixture
{
    std::optional<QString> savedText() const { return defaults->text(MainWindowLayout::frameAutosaveName); }
    void save(const QString &text) { defaults->store(MainWindowLayout::frameAutosaveName, text); }

    QTemporaryDir home;
    std::shared_ptr<DefaultsStore> defaults =
        DefaultsStore::inFile(home.filePath(QStringLiteral("store.conf")));
    MainWindowLayout layout{defaults};
};

/// As a user does: the frame's corner, and the size of what is in it.
void moveFrame(QWindow &window, const QPoint &corner, const QSize &contentSize)
{
    window.setFramePosition(corner);
    window.resize(contentSize);
}

QRect availableArea()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

} // namespace

class MainWindowLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPlaceFramesInsideTheScreensArea_data()
    {
        QTest::addColumn<QRect>("visibleFrame");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<std::optional<QPoint>>("origin");
        QTest::addColumn<QRect>("frame");
        using Origin = std::optional<QPoint>;
        const QRect belowPanel(0, 30, 1920, 1050);

        QTest::newRow("first launch: in the middle")
            << belowPanel << QSize(900, 808) << Origin() << QRect(510, 151, 900, 808);
        QTest::newRow("first launch on a small screen: as large as fits")
            << QRect(0, 0, 800, 600) << QSize(900, 808) << Origin() << QRect(20, 20, 760, 560);
        QTest::newRow("saved frame that fits stays")
            << belowPanel << QSize(1000, 800) << Origin({100, 100}) << QRect(100, 100, 1000, 800);
        QTest::newRow("saved frame larger than the area shrinks to it")
            << belowPanel << QSize(3000, 2000) << Origin({-50, -50}) << QRect(20, 50, 1880, 1010);
        QTest::newRow("off at the right and the bottom: pulled in with its size")
            << belowPanel << QSize(900, 800) << Origin({1800, 1000}) << QRect(1000, 260, 900, 800);
        QTest::newRow("off at the left and the top: pulled in with its size")
            << belowPanel << QSize(900, 800) << Origin({-300, 0}) << QRect(20, 50, 900, 800);
        QTest::newRow("screen to the left of the main one")
            << QRect(-1280, 200, 1280, 1024) << QSize(900, 800) << Origin({-2000, 210})
            << QRect(-1260, 220, 900, 800);
        QTest::newRow("touching the margin exactly")
            << belowPanel << QSize(900, 800) << Origin({1000, 260}) << QRect(1000, 260, 900, 800);
    }

    void shouldPlaceFramesInsideTheScreensArea()
    {
        QFETCH(QRect, visibleFrame);
        QFETCH(QSize, size);
        QFETCH(std::optional<QPoint>, origin);
        QTEST(MainWindowLayout::place(visibleFrame, size, origin), "frame");
    }

    void shouldChooseTheScreenThatHoldsMostOfTheFrame()
    {
        const QList<QRect> screens{{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}, {-1024, 0, 1024, 768}};
        const auto screenOf = [&screens](const QRect &frame) {
            return MainWindowLayout::screenOf(frame, screens).value_or(-1);
        };
        QCOMPARE(screenOf({100, 100, 900, 800}), 0);
        QCOMPARE(screenOf({1800, 100, 900, 800}), 1);
        QCOMPARE(screenOf({1400, 100, 900, 800}), 0);
        QCOMPARE(screenOf({-600, 100, 900, 600}), 2);
        QCOMPARE(screenOf({5000, 5000, 900, 800}), -1);
        QVERIFY(!MainWindowLayout::screenOf({0, 0, 10, 10}, {}));
    }

    void shouldReadBackOnlyWholeFrames_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isFrame");
        QTest::newRow("with origin") << QStringLiteral("-40 25 1000 700") << true;
        QTest::newRow("size only") << QStringLiteral("1000 700") << true;
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("three numbers") << QStringLiteral("1 2 3") << false;
        QTest::newRow("no size") << QStringLiteral("10 10 0 700") << false;
        QTest::newRow("words") << QStringLiteral("10 10 wide 700") << false;
    }

    void shouldReadBackOnlyWholeFrames()
    {
        QFETCH(QString, text);
        QFETCH(bool, isFrame);
        const auto frame = WindowFrame::fromText(text);
        QCOMPARE(frame.has_value(), isFrame);
        if (frame) {
            QCOMPARE(frame->toText(), text);
        }
    }

    void shouldRestoreTheSavedFrameOrIgnoreIt()
    {
        LayoutFixture fixture;
        const QRect area = availableArea();
        fixture.save(QStringLiteral("%1 %2 500 400").arg(area.x() + 30).arg(area.y() + 40));
        QWindow window;
        fixture.layout.apply(window, MainWindowLayout::SavedFrame::restore);
        QCOMPARE(window.size(), QSize(500, 400));
        QCOMPARE(window.framePosition(), area.topLeft() + QPoint(30, 40));

        fixture.layout.apply(window, MainWindowLayout::SavedFrame::ignore);
        QCOMPARE(window.frameGeometry(),
                 MainWindowLayout::place(
                     area, MainWindowLayout::recommendedContentSize.grownBy(window.frameMargins()), {}));
    }

    void shouldLeaveAFullScreenWindowAlone()
    {
        LayoutFixture fixture;
        QWindow window;
        window.setGeometry(availableArea().x() + 50, availableArea().y() + 60, 300, 200);
        const QRect before = window.geometry();
        window.setWindowState(Qt::WindowFullScreen);
        fixture.layout.apply(window, MainWindowLayout::SavedFrame::ignore);
        QCOMPARE(window.geometry(), before);
        window.setVisible(true); // show() would leave the full screen
        fixture.layout.save(window);
        QVERIFY(!fixture.savedText());
    }

    void shouldSaveOnceAfterTheUserHasMovedTheWindow()
    {
        LayoutFixture fixture;
        auto jobs = std::make_shared<ManualScheduler>();
        QWindow window;
        const MainWindowPlacement placement(window, fixture.layout, jobs);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents(); // the turn after it was shown
        jobs->advance(1s);

        const QPoint corner = availableArea().topLeft() + QPoint(25, 26);
        for (const int width : {510, 520, 530}) {
            moveFrame(window, corner, QSize(width, 410));
            QCoreApplication::processEvents();
        }
        QCOMPARE(jobs->waitingJobs(), 1);
        const auto before = fixture.savedText();
        jobs->advance(399ms);
        QCOMPARE(fixture.savedText(), before);
        jobs->advance(1ms);
        QCOMPARE(fixture.savedText(),
                 std::optional(QStringLiteral("%1 %2 530 410").arg(corner.x()).arg(corner.y())));
    }

    void shouldSaveBeforeTheWindowClosesAndRestoreWhenItIsShownAgain()
    {
        LayoutFixture fixture;
        auto jobs = std::make_shared<ManualScheduler>();
        QWindow window;
        const MainWindowPlacement placement(window, fixture.layout, jobs);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents();
        const QPoint corner = availableArea().topLeft() + QPoint(33, 34);
        moveFrame(window, corner, QSize(444, 333));
        QCoreApplication::processEvents();
        window.close();
        QCOMPARE(fixture.savedText(),
                 std::optional(QStringLiteral("%1 %2 444 333").arg(corner.x()).arg(corner.y())));
        QCOMPARE(jobs->waitingJobs(), 0);

        window.setGeometry(QRect(availableArea().topLeft(), QSize(200, 200)));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(window.size(), QSize(444, 333));
        QCOMPARE(window.framePosition(), corner);
    }
};

QTEST_MAIN(MainWindowLayoutTest)
#include "MainWindowLayoutTest.moc"
