#include "PresentationView.h"
#include "Scene.h"
#include "WelcomePanel.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

constexpr auto presentation = R"(
    import QtQuick
    import Lumaport.Welcome
    Item {
        width: 400; height: 500
        WelcomePresentation { objectName: "presentation" }
    })";

constexpr auto welcome = R"(
    import Lumaport.Welcome
    FirstLaunchView { width: 500; height: 420; playing: false; backdrop: true }
)";

WelcomePanel *shownPanel()
{
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (auto *panel = qobject_cast<WelcomePanel *>(window); panel && panel->isVisible()) {
            return panel;
        }
    }
    return nullptr;
}

int panelCount()
{
    return static_cast<int>(std::ranges::count_if(QGuiApplication::topLevelWindows(), [](QWindow *window) {
        return qobject_cast<WelcomePanel *>(window) && window->isVisible();
    }));
}

// Of all windows, those of this test's platform have no opacity to set, and say so.
void expectOpacityToBeSetAndReset()
{
    for (int i = 0; i < 2; ++i) {
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support setting window opacity");
    }
}

// How much signature there is in the columns [from, to) of the artwork's place.
int inkIn(const QImage &picture, const QQuickItem &artwork, double from, double to)
{
    const QRectF place = artwork.mapRectToScene(artwork.boundingRect());
    int ink = 0;
    for (int x = qCeil(place.left() + from * place.width()); x < place.left() + to * place.width(); ++x) {
        for (int y = qCeil(place.top()); y < place.bottom(); ++y) {
            ink += picture.pixelColor(x, y).value() > 120 ? 1 : 0;
        }
    }
    return ink;
}

} // namespace

class WelcomeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPlayInOnePanelOverTheInvisibleMainWindow()
    {
        expectOpacityToBeSetAndReset();
        Scene scene;
        scene.show(presentation);
        PresentationView *view = viewIn(scene, PresentationView::Surface::Panel);
        scene.window.setPosition(30, 40);
        view->setIsPresenting(true);
        QCOMPARE(scene.window.opacity(), 0.0);
        QVERIFY(!shownPanel()); // one turn later
        view->schedulePresentation();
        view->schedulePresentation();
        QCoreApplication::processEvents();
        QCOMPARE(panelCount(), 1);
        WelcomePanel *panel = shownPanel();
        QCOMPARE(panel->geometry(), scene.window.frameGeometry());
        QCOMPARE(panel->title(), QStringLiteral("Lumaport Welcome"));
        scene.window.resize(450, 520);
        QTRY_COMPARE(panel->geometry(), scene.window.frameGeometry());
        QTRY_COMPARE(panel->contentItem()->childItems().constFirst()->size(), QSizeF(panel->size()));

        view->setIsPresenting(false);
        QCoreApplication::processEvents();
        QVERIFY(!shownPanel());
        QCOMPARE(scene.window.opacity(), 1.0);
    }

    void shouldRestoreTheOpacityThatTheMainWindowHad()
    {
        for (int i = 0; i < 3; ++i) {
            QTest::ignoreMessage(QtWarningMsg, "This plugin does not support setting window opacity");
        }
        Scene scene;
        scene.show(presentation);
        scene.window.setOpacity(0.8);
        PresentationView *view = viewIn(scene, PresentationView::Surface::Panel);
        view->setIsPresenting(true);
        view->schedulePresentation();
        QCoreApplication::processEvents();
        QVERIFY(shownPanel());
        // Removing the main view ends the welcome.
        std::unique_ptr<QQuickItem> removed(view);
        removed->setParentItem(nullptr);
        QVERIFY(!shownPanel());
        QCOMPARE(scene.window.opacity(), 0.8);
    }

    void shouldComeBackWithAClosedMainWindow()
    {
        expectOpacityToBeSetAndReset();
        expectOpacityToBeSetAndReset();
        Scene scene;
        scene.show(presentation);
        PresentationView *view = viewIn(scene, PresentationView::Surface::Panel);
        view->setIsPresenting(true);
        QCoreApplication::processEvents();
        scene.window.hide();
        QVERIFY(!shownPanel());
        QCOMPARE(scene.window.opacity(), 1.0);
        scene.window.show();
        QCOMPARE(scene.window.opacity(), 0.0);
        QCoreApplication::processEvents();
        QVERIFY(shownPanel());
        view->setIsPresenting(false);
        QCoreApplication::processEvents();
    }

    void shouldFinishWhenThePanelIsClosed()
    {
        expectOpacityToBeSetAndReset();
        Scene scene;
        scene.show(presentation);
        PresentationView *view = viewIn(scene, PresentationView::Surface::Panel);
        QSignalSpy finished(view, &PresentationView::finished);
        view->setIsPresenting(true);
        QCoreApplication::processEvents();
        shownPanel()->close();
        QCOMPARE(finished.size(), 1);
        view->setIsPresenting(false);
        QCoreApplication::processEvents();
        QCOMPARE(scene.window.opacity(), 1.0);
    }

    void shouldPlayInsideTheMainWindowWhereWindowsCannotBeBlended()
    {
        Scene scene;
        scene.show(presentation);
        PresentationView *view = viewIn(scene, PresentationView::Surface::MainWindow);
        QSignalSpy finished(view, &PresentationView::finished);
        view->setIsPresenting(true);
        QCoreApplication::processEvents();
        QVERIFY(!shownPanel());
        QCOMPARE(scene.window.opacity(), 1.0);
        QQuickItem *overlay = scene.window.contentItem()->childItems().constLast();
        QCOMPARE(overlay->size(), QSizeF(400, 500));
        // Opaque and dark, so that the white texts are legible.
        QVERIFY(scene.window.grabWindow().pixelColor(5, 5).lightness() < 60);
        overlay->setProperty("elapsed", 1.5);
        scene.press(Qt::Key_Return);
        QCOMPARE(finished.size(), 1);
        view->setIsPresenting(false);
        QCoreApplication::processEvents();
        QVERIFY(scene.window.grabWindow().pixelColor(5, 5).lightness() > 200);
    }

    void shouldChangeNothingWhileThereIsNothingToPresent()
    {
        Scene scene;
        scene.show(presentation);
        PresentationView *view = viewIn(scene, PresentationView::Surface::Panel);
        view->schedulePresentation();
        QCoreApplication::processEvents();
        QVERIFY(!shownPanel());
        QCOMPARE(scene.window.opacity(), 1.0); // no platform warning either: it was never set
    }

    void shouldWipeTheSignatureInAndSweepALightOverIt()
    {
        Scene scene;
        QQuickItem *view = scene.show(
            welcome, {{QStringLiteral("artworkSource"), QStringLiteral(LUMAPORT_SIGNATURE_ARTWORK)}});
        const QQuickItem *artwork = scene.find(QStringLiteral("artwork"));
        QVERIFY(artwork);
        const auto pictureAt = [&](double seconds) {
            view->setProperty("elapsed", seconds);
            return scene.window.grabWindow();
        };
        QCOMPARE(inkIn(pictureAt(0.0), *artwork, 0.0, 1.0), 0);
        const QImage half = pictureAt(0.825);
        QVERIFY(inkIn(half, *artwork, 0.0, 0.49) > 500);
        QCOMPARE(inkIn(half, *artwork, 0.52, 1.0), 0);
        const QImage shimmering = pictureAt(1.80 + 1.05 / 2.0);
        const QImage done = pictureAt(2.85);
        QVERIFY(inkIn(done, *artwork, 0.52, 1.0) > 500);
        // The light is over the middle, and nowhere else; and only on the signature.
        const QPoint origin = artwork->mapToScene(QPointF()).toPoint();
        int changed = 0;
        for (int x = 0; x < 300; ++x) {
            for (int y = 0; y < 200; ++y) {
                if (shimmering.pixel(origin + QPoint(x, y)) != done.pixel(origin + QPoint(x, y))) {
                    QVERIFY2(x >= 113 && x <= 187, qPrintable(QString::number(x)));
                    ++changed;
                }
            }
        }
        QVERIFY2(changed > 300 && changed < 74 * 200 / 2, qPrintable(QString::number(changed)));
    }

    void shouldMeasureTheLightByTheFrameNotByTheArtwork()
    {
        const QTemporaryDir folder;
        const QString narrow = folder.filePath(QStringLiteral("narrow.png"));
        QImage image(100, 200, QImage::Format_ARGB32);
        image.fill(QColor(0xFF, 0x80, 0x20));
        QVERIFY(image.save(narrow));
        Scene scene;
        QQuickItem *view = scene.show(welcome, {{QStringLiteral("artworkSource"), narrow}});
        const QQuickItem *artwork = scene.find(QStringLiteral("artwork"));
        const auto lit = [&](double progress) { // columns of the frame, of which the artwork has 100 to 200
            view->setProperty("elapsed", 1.80 + 1.05 * progress);
            const QImage picture = scene.window.grabWindow();
            const QPoint middle = artwork->mapToScene(QPointF(0, 100)).toPoint();
            QList<int> columns;
            for (int x = 0; x < 300; ++x) {
                const QColor colour = picture.pixelColor(middle + QPoint(x, 0));
                if (colour.blue() > 0x60 && colour.red() > 0x60) {
                    columns.append(x);
                }
            }
            return columns;
        };
        QVERIFY(lit(0.0).isEmpty());
        // Halfway, the band of 72 lies in the middle.
        const QList<int> columns = lit(0.5);
        QVERIFY(!columns.isEmpty());
        QVERIFY2(columns.first() >= 114 && columns.first() < 135 && columns.last() >= 150,
                 qPrintable(QStringLiteral("%1 to %2").arg(columns.first()).arg(columns.last())));
    }

    void shouldOfferItsButtonWithTheTitle()
    {
        Scene scene;
        QQuickItem *view = scene.show(welcome);
        QSignalSpy finished(view, SIGNAL(finished()));
        const QQuickItem *button = scene.find(QStringLiteral("startButton"));
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
        QQuickItem *view = scene.show(welcome);
        view->setProperty("artworkSource", QStringLiteral("/nowhere/LumaportSignature.png"));
        view->setProperty("elapsed", 3.0);
        QVERIFY(!scene.find(QStringLiteral("artwork")));
        QVERIFY(scene.find(QStringLiteral("startButton"))->isEnabled());
        QVERIFY(scene.find(QStringLiteral("title"))->isVisible());
    }

    void shouldMoveOnlyUntilEverythingIsInItsPlace()
    {
        Scene scene;
        QQuickItem *view = scene.show("import Lumaport.Welcome; FirstLaunchView { width: 500; height: 420 }");
        QTRY_VERIFY(view->property("elapsed").toDouble() > 0.0);
        view->setProperty("elapsed", 2.86);
        QCoreApplication::processEvents();
        QCOMPARE(view->property("elapsed").toDouble(), 2.86);
    }

    void shouldBeInItsPlaceAtOnceAndForGoodWhenMotionIsReduced()
    {
        Scene scene;
        QQuickItem *view = scene.show("import Lumaport.Welcome; FirstLaunchView { width: 500; height: 420 }");
        const QQuickItem *button = scene.find(QStringLiteral("startButton"));
        QVERIFY(!button->isEnabled());
        scene.appearance.setMotion(SystemAppearance::Motion::Reduced);
        QVERIFY(button->isEnabled());
        QCOMPARE(button->opacity(), 1.0);
        const QVariant atRest = view->property("elapsed");
        scene.appearance.setMotion(SystemAppearance::Motion::Full);
        QVERIFY(button->isEnabled());
        QCOMPARE(view->property("elapsed"), atRest);
    }

private:
    static PresentationView *viewIn(const Scene &scene, PresentationView::Surface surface)
    {
        auto *view = qobject_cast<PresentationView *>(scene.find(QStringLiteral("presentation")));
        view->setSurface(surface);
        return view;
    }
};

QTEST_MAIN(WelcomeTest)
#include "WelcomeTest.moc"
