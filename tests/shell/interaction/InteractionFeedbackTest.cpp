#include "Scene.h"

namespace {

/// A control with feedback in a white window.
class Stage : public Scene
{
public:
    Stage()
    {
        show(R"(
            import QtQuick
            import Lumaport.Vocabulary
            import Lumaport.Interaction
            Item {
                width: 200; height: 100
                PlainButton {
                    objectName: "control"; text: "PNG"; x: 20; y: 20; width: 60; height: 30
                    InteractionFeedback { objectName: "feedback" }
                }
            })");
        button = find("control");
        leave(); // the pointer may be where an earlier test left it
    }

    bool hasHand() const { return window.cursor().shape() == Qt::PointingHandCursor; }
    bool isHighlighted() { return isClose(QColor(0xEB, 0xF0, 0xFC)); } // iris at 9 % over white
    bool isPlain() { return isClose(Qt::white); }
    void enter() { hover(button); }
    void leave() { QTest::mouseMove(&window, QPoint(150, 80)); }

    QQuickItem *button;

private:
    bool isClose(const QColor &expected)
    {
        const QColor colour = window.grabWindow().pixelColor(25, 26); // beside the label
        return qAbs(colour.red() - expected.red()) <= 2 && qAbs(colour.blue() - expected.blue()) <= 2;
    }
};

} // namespace

class InteractionFeedbackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHighlightAndShowTheHandOnlyUnderThePointer()
    {
        Stage stage;
        for (int visit = 0; visit < 3; ++visit) {
            QVERIFY(!stage.hasHand());
            stage.enter();
            QVERIFY(stage.hasHand());
            QTRY_VERIFY(stage.isHighlighted());
            stage.leave();
            QVERIFY(!stage.hasHand());
            QTRY_VERIFY(stage.isPlain());
        }
    }

    void shouldDropHandAndHighlightWhenDisabledOrHiddenUnderThePointer()
    {
        for (const char *property : {"enabled", "visible"}) {
            Stage stage;
            stage.enter();
            QTRY_VERIFY(stage.isHighlighted());
            stage.button->setProperty(property, false);
            QTRY_VERIFY(!stage.hasHand());
            QVERIFY2(stage.isPlain(), "at once: only the pointer's way is eased");
        }
    }

    void shouldKnowThePointerEvenWhileDisabled()
    {
        Stage stage;
        stage.button->setEnabled(false);
        stage.enter();
        QVERIFY(stage.find("feedback")->property("hovered").toBool());
        QVERIFY(!stage.hasHand());
        QVERIFY(stage.isPlain());
        stage.button->setEnabled(true);
        QTRY_VERIFY(stage.isHighlighted());
    }
};

QTEST_MAIN(InteractionFeedbackTest)
#include "InteractionFeedbackTest.moc"
