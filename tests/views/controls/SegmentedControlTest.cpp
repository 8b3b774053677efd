#include "ModelScene.h"

#include <QAccessible>

namespace {

constexpr auto controls = R"(
    import QtQuick
    import Lumaport.Controls
    import Lumaport.Options
    Rectangle {
        width: 300; height: 60; color: "white"
        FormatControl { objectName: "format"; x: 10; y: 10 }
        AppearanceControl { objectName: "appearance"; x: 150; y: 10 }
    })";

}

class SegmentedControlTest : public QObject
{
    Q_OBJECT

    static QQuickItem *segment(const QQuickItem *control, int number)
    {
        for (QQuickItem *child : control->childItems()) {
            if (child->objectName() == QStringLiteral("segment%1").arg(number)) {
                return child;
            }
        }
        return nullptr;
    }

    static QQuickItem *pill(const QQuickItem *control)
    {
        for (QQuickItem *child : control->childItems()) {
            if (child->objectName() == QStringLiteral("pill")) {
                return child;
            }
        }
        return nullptr;
    }

private Q_SLOTS:
    void shouldChooseByPointerKeysAndAssistiveInterface()
    {
        ModelScene scene;
        scene.show(controls);
        QQuickItem *format = scene.find(QStringLiteral("format"));
        const auto chosen = [&] { return scene.model.settings().format; };
        scene.click(segment(format, 1));
        QCOMPARE(chosen(), OutputFormat::jpeg);
        segment(format, 1)->forceActiveFocus(Qt::TabFocusReason);
        scene.press(Qt::Key_Left);
        QCOMPARE(chosen(), OutputFormat::png);
        QVERIFY2(segment(format, 0)->hasActiveFocus(), "focus goes with the choice");
        scene.press(Qt::Key_Left);
        QCOMPARE(chosen(), OutputFormat::png);
        scene.press(Qt::Key_Right);
        QCOMPARE(chosen(), OutputFormat::jpeg);

        QAccessible::setActive(true);
        QAccessibleInterface *png = QAccessible::queryAccessibleInterface(segment(format, 0));
        QAccessibleInterface *jpeg = QAccessible::queryAccessibleInterface(segment(format, 1));
        QCOMPARE(png->text(QAccessible::Name), QStringLiteral("Convert to PNG"));
        QCOMPARE(png->role(), QAccessible::RadioButton);
        QVERIFY(jpeg->state().selected);
        QVERIFY(!png->state().selected);
        png->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(chosen(), OutputFormat::png);
        QVERIFY(png->state().selected);
        QQuickItem *light = segment(scene.find(QStringLiteral("appearance")), 1);
        QCOMPARE(QAccessible::queryAccessibleInterface(light)->text(QAccessible::Description),
                 QStringLiteral("Light appearance"));
    }

    void shouldBeOneStopForTheTabKey()
    {
        ModelScene scene;
        scene.show(controls);
        segment(scene.find(QStringLiteral("format")), 0)->forceActiveFocus(Qt::TabFocusReason);
        scene.press(Qt::Key_Tab);
        scene.press(Qt::Key_Right);
        QCOMPARE(scene.model.appearanceMode(), AppearanceMode::light);
        scene.press(Qt::Key_Right);
        QCOMPARE(scene.model.appearanceMode(), AppearanceMode::dark);
        QCOMPARE(scene.model.settings().format, OutputFormat::png);
    }

    void shouldSlideThePillAndJumpWithReducedMotion()
    {
        ModelScene scene;
        scene.show(controls);
        const QQuickItem *format = scene.find(QStringLiteral("format"));
        const double first = segment(format, 0)->x();
        const double second = segment(format, 1)->x();
        QCOMPARE(pill(format)->x(), first);
        scene.click(segment(format, 1));
        QVERIFY(pill(format)->x() < second);
        QTRY_COMPARE(pill(format)->x(), second);
        QCOMPARE(pill(format)->mapToItem(format, QPointF()).y(), segment(format, 1)->y() - 2);

        scene.appearance.setMotion(SystemAppearance::Motion::Reduced);
        scene.click(segment(format, 0));
        QCOMPARE(pill(format)->x(), first);
    }

    void shouldChangeNothingWhenTheChosenOneIsPressedAgain()
    {
        ModelScene scene;
        scene.show(controls);
        const QQuickItem *format = scene.find(QStringLiteral("format"));
        const ConversionSettings before = scene.model.settings();
        scene.click(segment(format, 0));
        QCOMPARE(scene.model.settings(), before);
        QCOMPARE(pill(format)->x(), segment(format, 0)->x());
    }

    void shouldPaintTheChosenSegmentInCobaltUnderWhite()
    {
        ModelScene scene;
        scene.appearance.setMotion(SystemAppearance::Motion::Reduced);
        scene.show(controls);
        const QImage picture = scene.window.grabWindow();
        // Inside the pill, left of "PNG"; and the track beside it, in the gap between the segments.
        QCOMPARE(picture.pixelColor(10 + 4 + 4, 10 + 4 + 12).name(), QStringLiteral("#3978ff"));
        QCOMPARE(picture.pixelColor(10 + 4 + 53 + 3, 10 + 18).name(), QStringLiteral("#e7eefc"));
        QCOMPARE(picture.pixelColor(10 + 4 + 26, 10 + 4 - 2).name(), QStringLiteral("#3978ff"));
    }
};

QTEST_MAIN(SegmentedControlTest)
#include "SegmentedControlTest.moc"
