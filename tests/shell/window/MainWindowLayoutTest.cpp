#include "MainWindowLayout.h"

#include "DefaultsStore.h"
#include "MainWindowPlacement.h"
#include "ManualScheduler.h"

#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

using namespace std::chrono_literals;

namespace {

/// A store of its own, and a layout that keeps its frames there.
struct LayoutFixture
{
    QString saved() const { return defaults->text(MainWindowLayout::frameAutosaveName).value_or("nothing"); }

    QTemporaryDir home;
    std::shared_ptr<DefaultsStore> defaults = DefaultsStore::inFile(home.filePath("store.conf"));
    MainWindowLayout layout{defaults};
};

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
        const QSize size(900, 800);

        QTest::newRow("first launch") << belowPanel << size << Origin() << QRect(510, 155, 900, 800);
        QTest::newRow("first launch on a small screen")
            << QRect(0, 0, 800, 600) << size << Origin() << QRect(20, 20, 760, 560);
        QTest::newRow("fits") << belowPanel << size << Origin({100, 99}) << QRect(100, 99, 900, 800);
        QTest::newRow("larger than the area")
            << belowPanel << QSize(3000, 2000) << Origin({-50, -50}) << QRect(20, 50, 1880, 1010);
        QTest::newRow("off at the right and the bottom")
            << belowPanel << size << Origin({1800, 1000}) << QRect(1000, 260, 900, 800);
        QTest::newRow("off at the left and the top")
            << belowPanel << size << Origin({-300, 0}) << QRect(20, 50, 900, 800);
        QTest::newRow("screen to the left of the main one")
            << QRect(-1280, 200, 1280, 1024) << size << Origin({-2000, 210}) << QRect(-1260, 220, 900, 800);
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
        QCOMPARE(screenOf({1400, 100, 900, 800}), 0);
        QCOMPARE(screenOf({1800, 100, 900, 800}), 1);
        QCOMPARE(screenOf({-600, 100, 900, 600}), 2);
        QCOMPARE(screenOf({5000, 5000, 900, 800}), -1);
        QVERIFY(!MainWindowLayout::screenOf({0, 0, 10, 10}, {}));
    }

    void shouldReadBackOnlyWholeFrames()
    {
        for (const char *text : {"-40 25 1000 700", "1000 700 maximised"}) {
            QCOMPARE(WindowFrame::fromText(text)->toText(), QString(text));
        }
        for (const char *text :
             {"", "1 2 3", "10 10 0 700", "10 10 700 -1", "10 10 wide 700", "1000 700 wide"}) {
            QVERIFY2(!WindowFrame::fromText(text), text);
        }
    }

    void shouldLeaveAFullScreenWindowAlone()
    {
        const LayoutFixture fixture;
        QWindow window;
        window.setGeometry(50, 60, 300, 200);
        const QRect before = window.geometry();
        window.setWindowState(Qt::WindowFullScreen);
        fixture.layout.apply(window, MainWindowLayout::SavedFrame::ignore);
        QCOMPARE(window.geometry(), before);
        window.setVisible(true); // show() would leave the full screen
        fixture.layout.save(window);
        QCOMPARE(fixture.saved(), "nothing");
    }

    void shouldFitAScreenSmallerThanItsSmallestSize()
    {
        const LayoutFixture fixture;
        QWindow window;
        window.setMinimumSize({9000, 10});
        fixture.layout.apply(window, MainWindowLayout::SavedFrame::ignore);
        QCOMPARE(window.minimumSize(), QSize(window.screen()->availableSize().width() - 40, 10));
    }

    void shouldBringBackAMaximisedWindowWithItsOrdinaryFrame()
    {
        const LayoutFixture fixture;
        QWindow window;
        window.setGeometry(25, 26, 530, 410);
        window.setVisible(true);
        fixture.layout.save(window);
        const QRect ordinary(window.framePosition(), window.size());
        window.setWindowState(Qt::WindowMaximized);
        fixture.layout.save(window);

        QWindow next;
        fixture.layout.apply(next, MainWindowLayout::SavedFrame::restore);
        QCOMPARE(QRect(next.framePosition(), next.size()), ordinary);
        QCOMPARE(next.windowStates(), Qt::WindowMaximized);
        fixture.layout.apply(next, MainWindowLayout::SavedFrame::restore); // once its decoration is known
        QCOMPARE(next.windowStates(), Qt::WindowMaximized);
    }

    void shouldSaveOnceAfterTheUserHasMovedTheWindow()
    {
        const LayoutFixture fixture;
        auto jobs = std::make_shared<ManualScheduler>();
        QWindow window;
        const MainWindowPlacement placement(window, fixture.layout, jobs);
        const auto resize = [&window](int width) {
            window.setFramePosition(QPoint(25, 26));
            window.resize(width, 410);
            QCoreApplication::processEvents();
        };
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents(); // the turn after it was shown
        jobs->advance(1s);

        for (const int width : {510, 520, 530}) {
            resize(width);
        }
        const QString before = fixture.saved();
        QCOMPARE(jobs->waitingJobs(), 1);
        jobs->advance(399ms);
        QCOMPARE(fixture.saved(), before);
        jobs->advance(1ms);
        QCOMPARE(fixture.saved(), "25 26 530 410");
    }
};

QTEST_MAIN(MainWindowLayoutTest)
#include "MainWindowLayoutTest.moc"
