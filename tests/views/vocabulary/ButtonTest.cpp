#include "AccessibleItems.h"
#include "Scene.h"

#include <QAccessible>
#include <QSignalSpy>

namespace {

// A quiet button between two others, so that focus has somewhere to come from and go to.
constexpr auto buttons = R"(
    import QtQuick
    import Lumaport.Vocabulary
    Item {
        width: 300; height: 60
        QuietButton { objectName: "before"; x: 6; y: 6; text: "Before" }
        QuietButton { objectName: "button"; x: 100; y: 6; text: "Pause" ; help: "Stops for now" }
        QuietButton { objectName: "reveal"; x: 200; y: 6; symbol: "folder"; text: "Reveal"; display: QuietButton.IconOnly }
    })";

void pressThroughAccessibility(QQuickItem *item)
{
    QAccessible::queryAccessibleInterface(item)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
}

/// The visible text item below `item` with this text; nothing when there is none.
const QQuickItem *shownText(const QQuickItem *item, const QString &text)
{
    if (item->isVisible() && item->inherits("QQuickText") && item->property("text") == text) {
        return item;
    }
    for (const QQuickItem *child : item->childItems()) {
        if (const QQuickItem *found = shownText(child, text)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

class ButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBePressedByPointerKeysAndAssistiveInterfaceAlike()
    {
        Scene scene;
        scene.show(buttons);
        QQuickItem *button = scene.find(QStringLiteral("button"));
        QSignalSpy clicked(button, SIGNAL(clicked()));
        scene.click(button);
        QCOMPARE(clicked.size(), 1);
        button->forceActiveFocus();
        scene.press(Qt::Key_Space);
        scene.press(Qt::Key_Return);
        scene.press(Qt::Key_Enter);
        QCOMPARE(clicked.size(), 4);
        pressThroughAccessibility(button);
        QCOMPARE(clicked.size(), 5);
    }

    void shouldNotBePressedWhileDisabled()
    {
        AccessibleItems::install();
        Scene scene;
        scene.show(buttons);
        QQuickItem *button = scene.find(QStringLiteral("button"));
        QSignalSpy clicked(button, SIGNAL(clicked()));
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(button);
        QVERIFY(!spoken->state().disabled);
        button->setEnabled(false);
        QVERIFY(spoken->state().disabled);
        scene.click(button);
        pressThroughAccessibility(button);
        QCOMPARE(clicked.size(), 0);
        QVERIFY(button->opacity() < 0.6);
    }

    void shouldShowTheFocusRingOnlyForTheKeyboard()
    {
        Scene scene;
        scene.show(buttons);
        QQuickItem *before = scene.find(QStringLiteral("before"));
        QQuickItem *button = scene.find(QStringLiteral("button"));
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

    void shouldSpeakItsTextEvenWhenItShowsOnlyASymbol()
    {
        Scene scene;
        scene.show(buttons);
        QAccessibleInterface *reveal =
            QAccessible::queryAccessibleInterface(scene.find(QStringLiteral("reveal")));
        QCOMPARE(reveal->role(), QAccessible::Button);
        QCOMPARE(reveal->text(QAccessible::Name), QStringLiteral("Reveal"));
        QAccessibleInterface *pause =
            QAccessible::queryAccessibleInterface(scene.find(QStringLiteral("button")));
        QCOMPARE(pause->text(QAccessible::Description), QStringLiteral("Stops for now"));
        QCOMPARE(pause->childCount(), 0); // the label does not speak a second time
    }

    void shouldShrinkAndFadeWhilePressed_data()
    {
        QTest::addColumn<bool>("reduceMotion");
        QTest::addColumn<double>("scale");
        QTest::newRow("with motion") << false << 0.96;
        QTest::newRow("with reduced motion it only fades") << true << 1.0;
    }

    void shouldShrinkAndFadeWhilePressed()
    {
        QFETCH(bool, reduceMotion);
        QFETCH(double, scale);
        Scene scene;
        scene.appearance.setMotion(reduceMotion ? SystemAppearance::Motion::Reduced
                                                : SystemAppearance::Motion::Full);
        scene.show(buttons);
        QQuickItem *button = scene.find(QStringLiteral("button"));
        auto *background = button->property("background").value<QQuickItem *>();
        QTest::mousePress(&scene.window, Qt::LeftButton, {}, scene.centre(button));
        QTRY_VERIFY(qAbs(background->property("color").value<QColor>().alphaF() - 0.6F) < 0.005F);
        QTRY_VERIFY(qAbs(button->scale() - scale) < 1e-3);
        QTest::mouseRelease(&scene.window, Qt::LeftButton, {}, scene.centre(button));
        QTRY_COMPARE(button->scale(), 1.0);
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
        scene.hover(scene.find(QStringLiteral("button")));
        const auto tip = [&] {
            return shownText(scene.window.contentItem(), QStringLiteral("/home/<b>ada"));
        };
        QTRY_VERIFY(tip());
        scene.window.grabWindow(); // it gets its place with the next frame
        const QQuickItem *text = tip();
        QCOMPARE(text->property("textFormat").toInt(), int(Qt::PlainText));
        const QPoint left = text->mapToScene(QPointF(-4, text->height() / 2)).toPoint();
        QCOMPARE(scene.window.grabWindow().pixelColor(left).name(), QStringLiteral("#252f49"));
        QTest::mouseMove(&scene.window, QPoint(10, 10));
        QTRY_VERIFY(!tip());
    }

    void shouldTakeTheOtherColoursWhenTheAppearanceChanges()
    {
        Scene scene;
        scene.show(buttons);
        const auto fill = [&] { return scene.window.grabWindow().pixelColor(104, 22).name(); };
        QCOMPARE(fill(), QStringLiteral("#ffffff"));
        scene.appearance.force(SystemAppearance::ColorScheme::Dark);
        QTRY_COMPARE(fill(), QStringLiteral("#252f49"));
    }
};

QTEST_MAIN(ButtonTest)
#include "ButtonTest.moc"
