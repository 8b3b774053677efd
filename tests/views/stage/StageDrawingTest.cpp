#include "ConversionError.h"
#include "ConversionFluid.h"
#include "FolderFront.h"
#include "GaussianBlur.h"
#include "ModelScene.h"
#include "PhotoLandingStageController.h"

#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QVector3D>

#include <cmath>

namespace {

/// The stage, with the pointer beside it.
class StageScene : public ModelScene
{
public:
    StageScene()
    {
        show("import QtQuick\nimport Lumaport.Stage\nItem { id: page; width: 400; height: 222\n"
             "required property PhotoLandingStageController controller\n"
             "PhotoLandingStage { objectName: 'stage'; controller: page.controller } }",
             {{"controller", QVariant::fromValue(&m_controller)}});
        for (const int x : {380, 370}) { // the pointer may rest where an earlier test left it
            QTest::mouseMove(&window, QPoint(x, 20));
        }
    }
    ~StageScene() { close(); }
    StageScene(const StageScene &) = delete;
    StageScene &operator=(const StageScene &) = delete;

private:
    PhotoLandingStageController m_controller{model};
};

} // namespace

// What the stage draws by itself.
class StageDrawingTest : public QObject
{
    Q_OBJECT

    /// A drag enters the stage, whose folder gets this tilt and which grows by this factor.
    static void fan(SystemAppearance::Motion motion, double tilt, double growth)
    {
        StageScene scene;
        scene.appearance.setMotion(motion);
        const QQuickItem *stage = scene.find("stage");
        const QQuickItem *front = scene.find("front");
        const auto card = [&](int number) { return scene.find(QStringLiteral("card%1").arg(number)); };
        // How far a card's middle lies from the stage's; an odd side is centred on a whole point.
        const auto liesAt = [&](int number, QPointF place) {
            const QQuickItem *shown = card(number);
            const QPointF middle = shown->mapToItem(stage, QPointF(shown->width() / 2, shown->height() / 2));
            return QLineF(middle - QPointF(165, 111), place).length() < 0.8;
        };
        QTRY_COMPARE(front->property("tilt").toDouble(), -5.0);
        QTRY_COMPARE(card(2)->rotation(), 10.0);
        for (const int side : {-1, 0, 1}) {
            QCOMPARE(card(side + 1)->rotation(), 10.0 * side);
            QVERIFY(liesAt(side + 1, QPointF(43 * side, -17)));
        }
        scene.model.setIsDropTargeted(true);
        QTRY_COMPARE(card(2)->rotation(), 18.0);
        for (const int side : {-1, 0, 1}) {
            QCOMPARE(card(side + 1)->rotation(), 18.0 * side);
            QTRY_VERIFY(liesAt(side + 1, QPointF(63 * side, -37) * growth));
        }
        QCOMPARE(front->property("tilt").toDouble(), tilt);
    }

private Q_SLOTS:
    void shouldBlurLikeAGaussian()
    {
        // The edge of a half-plane, blurred, is the Gaussian's integral.
        constexpr int side = 121;
        constexpr int edge = side / 2;
        constexpr double radius = 6.0;
        QImage mask(side, side, QImage::Format_Alpha8);
        mask.fill(0);
        for (int y = 0; y < side; ++y) {
            std::fill_n(mask.scanLine(y) + side / 2, side - side / 2, uchar{255});
        }
        const QImage blurred = GaussianBlur::blurred(mask, radius);
        const uchar *row = blurred.constScanLine(edge);
        for (int x = 40; x < 80; ++x) {
            const double distance = x + 0.5 - edge;
            const double expected = 255.0 * 0.5 * (1.0 + std::erf(distance / (radius * std::sqrt(2.0))));
            QVERIFY2(std::abs(row[x] - expected) < 5.0, qPrintable(QString::number(x)));
        }
        const int reach = static_cast<int>(GaussianBlur::extent(radius));
        QVERIFY(blurred.constScanLine(side / 2)[side / 2 - reach] <= 1);
    }

    void shouldDrawAGlowAroundItsShape()
    {
        Scene scene;
        scene.show("import QtQuick; import Lumaport.Drawing; Rectangle { width: 200; height: 100;"
                   "SoftShape { anchors.centerIn: parent; shapeSize: Qt.size(100, 20); cornerRadius: 50;"
                   "blurRadius: 5; color: Qt.rgba(0, 0, 0, 1) } }");
        const QImage picture = scene.window.grabWindow();
        const int middle = picture.pixelColor(100, 50).red();
        QVERIFY2(middle < 40, qPrintable(QString::number(middle)));
        const int end = picture.pixelColor(51, 41).red(); // a rectangle would be dark here, an ellipse is not
        QVERIFY2(end > 220, qPrintable(QString::number(end)));
        QCOMPARE(picture.pixelColor(100, 50 - 10 - 16).red(), 255);
    }

    void shouldDrawRoundCornersWithoutGapsAtEveryScale()
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import Lumaport.Drawing\nRoundedRectangle { x: 7.3; y: 9.4; width: 61; height: 37;"
                          "radius: 9; color: 'blue'; borderColor: 'red'; borderWidth: 3 }",
                          {});
        for (double scale = 1.0; scale <= 3.0; scale += 0.25) {
            QQuickRenderControl control;
            QQuickWindow window(&control);
            window.resize(80, 60);
            const std::unique_ptr<QObject> shape(component.create());
            qobject_cast<QQuickItem *>(shape.get())->setParentItem(window.contentItem());
            QImage picture(window.size() * scale, QImage::Format_ARGB32_Premultiplied);
            picture.setDevicePixelRatio(scale);
            QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&picture);
            target.setDevicePixelRatio(scale);
            window.setRenderTarget(target);
            control.polishItems();
            control.sync();
            control.render();
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    // How far inside of the outline the pixel is: the outline is 9 points around a box.
                    const QPointF beyond((std::abs((x + 0.5) / scale - 37.8) - 21.5),
                                         (std::abs((y + 0.5) / scale - 27.9) - 9.5));
                    const double inside =
                        scale * (9.0 - std::hypot(std::max(beyond.x(), 0.0), std::max(beyond.y(), 0.0)) -
                                 std::min(0.0, std::max(beyond.x(), beyond.y())));
                    const auto is = [&](Qt::GlobalColor color) {
                        return picture.pixelColor(x, y) == QColor(color);
                    };
                    constexpr double edge = 1.5; // pixels, on either side
                    const double line = 3.0 * scale;
                    const bool isRight = inside < -edge                          ? is(Qt::white)
                                         : inside > line + edge                  ? is(Qt::blue)
                                         : inside > edge && inside < line - edge ? is(Qt::red)
                                                                                 : true;
                    QVERIFY2(isRight, qPrintable(QStringLiteral("%1: %2 %3").arg(scale).arg(x).arg(y)));
                }
            }
        }
    }

    void shouldLeanTheFolderAboutItsBottomEdge()
    {
        FolderFront front;
        const auto place = [&front](double x, double y) {
            return front.tiltMatrix().map(QPointF(x, y)); // with a margin of one point
        };
        front.setProperty("tilt", 0.0);
        QCOMPARE(place(1.0, 1.0), QPointF(1.0, 1.0));
        front.setProperty("tilt", -18.0);
        for (const double x : {1.0, 120.5, 240.0}) {
            QVERIFY(QLineF(place(x, 109.0), QPointF(x, 109.0)).length() < 1e-3);
        }
        // From 239 points away the top edge, 108 sin 18 nearer, is larger by 239 / (239 - 33.37).
        const double larger = 239.0 / (239.0 - 108.0 * std::sin(18.0 * M_PI / 180.0));
        QVERIFY(std::abs(place(240.0, 1.0).x() - (120.5 + 119.5 * larger)) < 0.01);
        QVERIFY(std::abs(place(120.5, 1.0).y() - (109.0 - 108.0 * std::cos(18.0 * M_PI / 180.0) * larger)) <
                0.01);
        // A scene has no depth: what left its plane would be cut off.
        QCOMPARE(front.tiltMatrix().map(QVector3D(50.0F, 20.0F, 0.0F)).z(), 0.0F);
    }

    void shouldFanItsCardsOutForADrag()
    {
        fan(SystemAppearance::Motion::Full, -18.0, 1.04);
        fan(SystemAppearance::Motion::Reduced, -5.0, 1.0);
    }

    void shouldShowThePhotoWithItsCaptionAndABadgeForEachState()
    {
        StageScene scene;
        scene.appearance.setMotion(SystemAppearance::Motion::Reduced);
        QList<QImage> badges; // of each state: where it is white, as its symbol is
        const auto note = [&] {
            const QImage badge = scene.window.grabWindow().copy(165 - 27, 111 + 43 - 27, 54, 54);
            badges << badge.convertToFormat(QImage::Format_RGB32).createMaskFromColor(qRgb(255, 255, 255));
        };
        note();
        scene.model.convertManually({scene.item("a.heic", ConversionStatus::queued).sourceURL});
        ModelFixture::turn();
        note();
        (void)scene.item("a.png", ConversionStatus::ready);
        scene.fixture.engine->succeed("a.png");
        note();
        QQuickItem *card = scene.find("card0");
        QVERIFY(scene.findText("Ready", card));
        const QPoint picture = card->mapToScene(QPointF(7 + 25, 7 + 47)).toPoint();
        QTRY_COMPARE(scene.window.grabWindow().pixelColor(picture), QColor(255, 165, 0));
        scene.model.convertManually({scene.item("b.heic", ConversionStatus::queued).sourceURL});
        ModelFixture::turn();
        scene.fixture.engine->fail(ConversionError::unreadableImage);
        note();
        QVERIFY(scene.findText("Photo", card));
        for (int i = 0; i < badges.size(); ++i) {
            QCOMPARE(badges.indexOf(badges.at(i)), i);
        }
    }

    void shouldDrawTheFluidOfItsMoment()
    {
        Scene scene;
        auto *fluid = qobject_cast<ConversionFluid *>(
            scene.show("import QtQuick; import Lumaport.Stage; ConversionFluid { width: 54; height: 54 }"));
        QVERIFY(fluid);
        const QImage still = scene.window.grabWindow();
        QCOMPARE(still.pixelColor(1, 1), QColor(Qt::white)); // a disc, not a square
        struct Drop
        {
            QVector3D color;
            double phase;
        };
        const std::array drops{Drop{{0x39, 0x78, 0xFF}, 0.0}, Drop{{0x55, 0xBE, 0xF0}, 2.1},
                               Drop{{0xFF, 0x80, 0x5F}, 4.2}};
        const auto centre = [](double phase) {
            return QPointF(54 * (0.5 + 0.28 * std::sin(phase)), 54 * (0.62 + 0.2 * std::cos(0.8 * phase)));
        };
        for (const Drop &seen : drops) {
            const QPoint point = centre(seen.phase).toPoint();
            QVector3D expected(255, 255, 255);
            for (const Drop &drop : drops) { // each covers what is below by 85 % at its centre
                const double distance =
                    QLineF(centre(drop.phase), QPointF(point) + QPointF(0.5, 0.5)).length();
                const auto cover = static_cast<float>(0.85 * std::max(0.0, 1.0 - distance / (0.75 * 54)));
                expected = expected * (1.0F - cover) + drop.color * cover;
            }
            const QColor actual = still.pixelColor(point);
            const QVector3D difference =
                255.0F * QVector3D(actual.redF(), actual.greenF(), actual.blueF()) - expected;
            QVERIFY2(difference.length() < 8.0F, qPrintable(actual.name()));
        }
        fluid->setTime(1.0);
        QVERIFY(scene.window.grabWindow() != still);
        fluid->setTime(0.0);
        QCOMPARE(scene.window.grabWindow(), still);
    }

    void shouldMoveTheFluidOnlyWhenThatIsWantedAndSeen()
    {
        Scene scene;
        auto *fluid = qobject_cast<ConversionFluid *>(
            scene.show("import QtQuick; import Lumaport.Stage; ConversionFluid { width: 54; height: 54 }"));
        QVERIFY(!fluid->isMoving());
        fluid->setProperty("active", true);
        QTRY_VERIFY(fluid->time() > 0.0);
        QWindow other;
        other.show();
        const std::array<std::array<std::function<void()>, 2>, 4> pauses{{
            {[&] { scene.window.hide(); }, [&] { scene.window.show(); }},
            {[&] { scene.window.showMinimized(); }, [&] { scene.window.showNormal(); }},
            {[&] { other.requestActivate(); }, [&] { scene.window.requestActivate(); }},
            {[&] { fluid->setVisible(false); }, [&] { fluid->setVisible(true); }},
        }};
        for (const auto &[pause, resume] : pauses) {
            scene.window.requestActivate();
            QTRY_VERIFY(fluid->isMoving());
            pause();
            QTRY_VERIFY(!fluid->isMoving());
            resume();
        }
        for (const auto &[property, value] : {std::pair{"reduceMotion", true}, std::pair{"active", false}}) {
            QTRY_VERIFY(fluid->isMoving());
            fluid->setProperty(property, value);
            QVERIFY(!fluid->isMoving());
            QCOMPARE(fluid->time(), 0.0);
            fluid->setProperty(property, !value);
        }
    }
};

QTEST_MAIN(StageDrawingTest)
#include "StageDrawingTest.moc"
