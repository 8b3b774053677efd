#include "Scene.h"

#include <QSignalSpy>

namespace {

// A quiet button after another, so that focus has somewhere to come from.
constexpr auto buttons = R"(
    import QtQuick
    import Lumaport.Vocabulary
    Item {
        width: 300; height: 60
        QuietButton { objectName: "before"; x: 6; y: 6; text: "Before" }
        QuietButton { objectName: "button"; x: 100; y: 6; text: "Pause" ; help: "Stops for now" }
    })";

} // namespace

class ButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBePressedInEveryWayUnlessDisabled()
    {
        Scene scene;
        scene.show(buttons);
        QQuickItem *button = scene.find("button");
        QSignalSpy clicked(button, SIGNAL(clicked()));
        const auto pressInEveryWay = [&] {
            button->forceActiveFocus();
            scene.click(button);
            scene.press(Qt::Key_Space);
            for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
                scene.press(key);
                QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
                QCoreApplication::sendEvent(&scene.window, &held);
            }
            Scene::accessible(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        };
        pressInEveryWay();
        QCOMPARE(clicked.size(), 5);
        button->setEnabled(false);
        pressInEveryWay();
        QCOMPARE(clicked.size(), 5);
        QVERIFY(button->opacity() < 0.6);
    }

    void shouldShowTheFocusRingOnlyForTheKeyboard()
    {
        Scene scene;
        scene.show(buttons);
        QQuickItem *before = scene.find("before");
        QQuickItem *button = scene.find("button");
        // The ring lies three points around the button.
        const auto ringAround = [&](const QQuickItem *item) {
            return scene.window.grabWindow().pixelColor(qRound(item->x()) - 2, 22) ==
                   QColor(0x24, 0x5B, 0xDB);
        };
        scene.click(before);
        QVERIFY(before->hasActiveFocus());
        QVERIFY(!ringAround(before));
        scene.press(Qt::Key_Tab);
        QVERIFY(button->hasActiveFocus());
        QVERIFY(ringAround(button));
        scene.click(before);
        QVERIFY(!ringAround(button));
    }

    void shouldSpeakItsHelpAndItsTextOnce()
    {
        Scene scene;
        scene.show(buttons);
        QAccessibleInterface *spoken = Scene::accessible(scene.find("button"));
        QCOMPARE(spoken->text(QAccessible::Description), "Stops for now");
        QCOMPARE(spoken->childCount(), 0); // the label does not speak a second time
    }

    void shouldShrinkAndFadeWhilePressedAndOnlyFadeWithReducedMotion()
    {
        for (const auto motion : {SystemAppearance::Motion::Full, SystemAppearance::Motion::Reduced}) {
            const double scale = motion == SystemAppearance::Motion::Full ? 0.96 : 1.0;
            Scene scene;
            scene.appearance.setMotion(motion);
            scene.show(buttons);
            QQuickItem *button = scene.find("button");
            auto *background = button->property("background").value<QQuickItem *>();
            QTest::mousePress(&scene.window, Qt::LeftButton, {}, scene.centre(button));
            QTRY_VERIFY(qAbs(background->property("color").value<QColor>().alphaF() - 0.6F) < 0.005F);
            QTRY_VERIFY(qAbs(button->scale() - scale) < 1e-3);
            QTest::mouseRelease(&scene.window, Qt::LeftButton, {}, scene.centre(button));
            QTRY_COMPARE(button->scale(), 1.0);
        }
    }

    void shouldSayWhatItDoesInPlainTextAndInTheAppearancesColours()
    {
        Scene scene;
        scene.appearance.force(SystemAppearance::ColorScheme::Dark);
        scene.show(R"(
            import QtQuick
            import Lumaport.Vocabulary
            Item {
                width: 300; height: 100
                PlainButton { objectName: "button"; x: 100; y: 50; text: "Photos"; help: "/home/<b>ada" }
            })");
        scene.hover(scene.find("button"));
        const auto tip = [&] { return scene.findText("/home/<b>ada", scene.window.contentItem()); };
        QTRY_VERIFY(tip());
        scene.window.grabWindow(); // it gets its place with the next frame
        const QQuickItem *text = tip();
        QCOMPARE(text->property("textFormat").toInt(), int(Qt::PlainText));
        const QPoint left = text->mapToScene(QPointF(-4, text->height() / 2)).toPoint();
        QCOMPARE(scene.window.grabWindow().pixelColor(left).name(), "#252f49");
        QTest::mouseMove(&scene.window, QPoint(10, 10));
        QTRY_VERIFY(!tip());
    }

    void shouldTakeTheOtherColoursWhenTheAppearanceChanges()
    {
        Scene scene;
        scene.show(buttons);
        const auto fill = [&] { return scene.window.grabWindow().pixelColor(104, 22).name(); };
        QCOMPARE(fill(), "#ffffff");
        scene.appearance.force(SystemAppearance::ColorScheme::Dark);
        QTRY_COMPARE(fill(), "#252f49");
    }
};

QTEST_MAIN(ButtonTest)
#include "ButtonTest.moc"
