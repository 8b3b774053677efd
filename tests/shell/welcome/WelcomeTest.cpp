#include "FirstLaunchSequence.h"
#include "PresentationView.h"
#include "Scene.h"
#include "WelcomePanel.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

constexpr auto welcome = R"(
    import Lumaport.Welcome
    FirstLaunchView { width: 500; height: 420; playing: false; backdrop: true }
)";

/// A main window that presents the welcome.
class Presentation : public Scene
{
public:
    explicit Presentation(PresentationView::Surface surface)
    {
        show(R"(
            import QtQuick
            import Lumaport.Welcome
            Item {
                width: 400; height: 500
                WelcomePresentation { objectName: "presentation" }
            })");
        QTest::failOnWarning(QRegularExpression("opacity"));
        view = qobject_cast<PresentationView *>(find("presentation"));
        view->setSurface(surface);
    }

    /// Presents as the main view does, and waits for the turn after.
    void present(bool isPresenting = true) const
    {
        view->setProperty("isPresenting", isPresenting);
        QCoreApplication::processEvents();
    }

    QList<WelcomePanel *> panels() const
    {
        QList<WelcomePanel *> shown;
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (QWindow *candidate : windows) {
            if (auto *panel = qobject_cast<WelcomePanel *>(candidate); panel && panel->isVisible()) {
                shown.append(panel);
            }
        }
        return shown;
    }

    PresentationView *view = nullptr;
};

/// The platform of the tests warns at each change of a window's opacity. Each further change fails the test.
void expectChangesOfOpacity(int count)
{
    for (int i = 0; i < count; ++i) {
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support setting window opacity");
    }
}

} // namespace

class WelcomeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeItsStepsInTheirTimes_data()
    {
        QTest::addColumn<double>("elapsed");
        QTest::addColumn<double>("reveal");
        QTest::addColumn<double>("title");
        QTest::addColumn<double>("button");
        QTest::addColumn<double>("shimmer");
        QTest::addColumn<double>("scale");
        QTest::newRow("start") << 0.0 << 0.0 << 0.0 << 0.0 << 0.0 << 0.96;
        QTest::newRow("a slow beginning") << 0.33 << 0.082 << 0.0 << 0.0 << 0.0 << 0.997;
        QTest::newRow("half of the wipe") << 0.825 << 0.5 << 0.0 << 0.0 << 0.0 << 1.0;
        QTest::newRow("before the title") << 1.41 << 0.958 << 0.0 << 0.0 << 0.0 << 1.0;
        QTest::newRow("title") << 1.5 << 0.984 << 0.276 << 0.0 << 0.0 << 1.0;
        QTest::newRow("button") << 1.725 << 1.0 << 0.853 << 0.685 << 0.0 << 1.0;
        QTest::newRow("shimmer") << 2.325 << 1.0 << 1.0 << 1.0 << 0.5 << 1.0;
        QTest::newRow("end") << 2.85 << 1.0 << 1.0 << 1.0 << 1.0 << 1.0;
    }

    void shouldTakeItsStepsInTheirTimes()
    {
        QFETCH(double, elapsed);
        FirstLaunchSequence sequence;
        sequence.setProperty("elapsed", elapsed);
        QCOMPARE(sequence.isTitleVisible(), elapsed > 1.415);
        QCOMPARE(sequence.isRunning(), elapsed < 2.849);
        const auto isNear = [](double value, const char *column) {
            const double expected = *static_cast<double *>(QTest::qData(column, qMetaTypeId<double>()));
            return qAbs(value - expected) < 0.002;
        };
        QVERIFY(isNear(sequence.revealProgress(), "reveal"));
        QVERIFY(isNear(sequence.titleProgress(), "title"));
        QVERIFY(isNear(sequence.buttonProgress(), "button"));
        QVERIFY(isNear(sequence.shimmerProgress(), "shimmer"));
        QVERIFY(isNear(sequence.artworkScale(), "scale"));
    }

    void shouldPlayInOnePanelOverTheInvisibleMainWindow()
    {
        expectChangesOfOpacity(3);
        Presentation scene(PresentationView::Surface::Panel);
        scene.window.setPosition(30, 40);
        scene.window.setOpacity(0.8);
        scene.view->setProperty("isPresenting", true);
        QCOMPARE(scene.window.opacity(), 0.0);
        QVERIFY(scene.panels().isEmpty()); // until one turn later
        scene.view->schedulePresentation();
        scene.view->schedulePresentation();
        QCoreApplication::processEvents();
        QCOMPARE(scene.panels().size(), 1);
        const WelcomePanel *panel = scene.panels().constFirst();
        QCOMPARE(panel->geometry(), scene.window.frameGeometry());
        scene.window.resize(450, 520);
        QTRY_COMPARE(panel->geometry(), scene.window.frameGeometry());
        QTRY_COMPARE(panel->contentItem()->childItems().constFirst()->size(), QSizeF(panel->size()));

        scene.present(false);
        QVERIFY(scene.panels().isEmpty());
        QCOMPARE(scene.window.opacity(), 0.8);
    }

    void shouldShowTheMainWindowWhenTheMainViewGoesOrTheWindowIsClosed()
    {
        expectChangesOfOpacity(4);
        Presentation scene(PresentationView::Surface::Panel);
        scene.present();
        scene.window.hide();
        QVERIFY(scene.panels().isEmpty());
        QCOMPARE(scene.window.opacity(), 1.0);
        scene.window.show();
        QCOMPARE(scene.window.opacity(), 0.0);
        QCoreApplication::processEvents();
        QVERIFY(!scene.panels().isEmpty());
        const std::unique_ptr<QQuickItem> removed(scene.view);
        removed->setParentItem(nullptr);
        QVERIFY(scene.panels().isEmpty());
        QCOMPARE(scene.window.opacity(), 1.0);
    }

    void shouldFinishWhenThePanelIsClosed()
    {
        expectChangesOfOpacity(2);
        Presentation scene(PresentationView::Surface::Panel);
        QSignalSpy finished(scene.view, &PresentationView::finished);
        scene.present();
        scene.panels().constFirst()->close();
        QCOMPARE(finished.size(), 1);
        scene.present(false);
        QCOMPARE(scene.window.opacity(), 1.0);
    }

    void shouldPlayInsideTheMainWindowWhereWindowsCannotBeBlended()
    {
        Presentation scene(PresentationView::Surface::MainWindow);
        scene.present();
        QVERIFY(scene.panels().isEmpty());
        QCOMPARE(scene.window.opacity(), 1.0);
        const QQuickItem *overlay = scene.window.contentItem()->childItems().constLast();
        QCOMPARE(overlay->size(), QSizeF(400, 500));
        // Opaque and dark, so that the white texts are legible.
        QVERIFY(scene.window.grabWindow().pixelColor(5, 5).lightness() < 60);
        scene.present(false);
        QVERIFY(scene.window.grabWindow().pixelColor(5, 5).lightness() > 200);
    }

    void shouldWipeTheSignatureInAndSweepALightOverIt()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("narrow.png");
        QImage image(100, 200, QImage::Format_ARGB32); // the frame is 300 wide
        image.fill(Qt::transparent);
        QPainter(&image).fillRect(0, 100, 100, 100, QColor(0xFF, 0x80, 0x20));
        QVERIFY(image.save(file));
        Scene scene;
        QQuickItem *view = scene.show(welcome, {{"artworkSource", file}});
        const QPoint corner = scene.centre(scene.find("artwork")) - QPoint(150, 100);
        const auto pictureAt = [&](double seconds) {
            view->setProperty("elapsed", seconds);
            return scene.window.grabWindow().copy(QRect(corner, QSize(300, 200)));
        };
        const QImage ground = pictureAt(0);
        const QImage half = pictureAt(0.825);
        const QImage lit = pictureAt(1.80 + 1.05 / 2); // its band covers the middle 72 columns of the frame
        const QImage done = pictureAt(2.85);
        QCOMPARE(ground.pixelColor(145, 150), ground.pixelColor(50, 150));
        QVERIFY(half.pixel(145, 150) == done.pixel(145, 150));
        QVERIFY(half.pixel(155, 150) == ground.pixel(155, 150));
        for (const int column : {105, 112, 190}) {
            QCOMPARE(lit.pixelColor(column, 150), QColor(0xFF, 0x80, 0x20));
        }
        for (const int column : {140, 155}) {
            QVERIFY(lit.pixelColor(column, 150).blue() > 0x60);
            QVERIFY(lit.pixel(column, 50) == ground.pixel(column, 50));
            QCOMPARE(done.pixelColor(column, 150), QColor(0xFF, 0x80, 0x20));
        }
    }

    void shouldOfferItsButtonWithTheTitle()
    {
        Scene scene;
        QQuickItem *view = scene.show(welcome);
        QSignalSpy finished(view, SIGNAL(finished()));
        const QQuickItem *button = scene.find("startButton");
        QVERIFY(QFile::exists(":/symbols/" + button->property("symbol").toString() + ".svg"));
        view->setProperty("elapsed", 1.41);
        scene.press(Qt::Key_Return);
        scene.click(button);
        QCOMPARE(finished.size(), 0);
        view->setProperty("elapsed", 1.42);
        scene.press(Qt::Key_Return);
        QCOMPARE(finished.size(), 1);
        scene.press(Qt::Key_Enter);
        scene.click(button);
        QCOMPARE(finished.size(), 3);
    }

    void shouldGreetWithoutItsArtwork()
    {
        Scene scene;
        scene.show(welcome, {{"artworkSource", "/nowhere/LumaportSignature.png"}, {"elapsed", 3.0}});
        QVERIFY(!scene.find("artwork"));
        QVERIFY(scene.find("startButton")->isEnabled());
        QVERIFY(scene.find("title")->isVisible());
    }

    void shouldBeInItsPlaceAtOnceAndForGoodWhenMotionIsReduced()
    {
        Scene scene;
        QQuickItem *view = scene.show("import Lumaport.Welcome; FirstLaunchView { width: 500; height: 420 }");
        const QQuickItem *button = scene.find("startButton");
        QVERIFY(!button->isEnabled());
        scene.appearance.setMotion(SystemAppearance::Motion::Reduced);
        QCOMPARE(button->opacity(), 1.0);
        const QVariant atRest = view->property("elapsed");
        scene.appearance.setMotion(SystemAppearance::Motion::Full);
        QVERIFY(button->isEnabled());
        QCOMPARE(view->property("elapsed"), atRest);
    }
};

QTEST_MAIN(WelcomeTest)
#include "WelcomeTest.moc"
