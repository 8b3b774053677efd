#include "Scene.h"

#include <QSignalSpy>

namespace {

constexpr auto control = R"(
    import QtQuick
    import Lumaport.Vocabulary
    import Lumaport.Interaction
    Item {
        width: 200; height: 100
        PlainButton {
            objectName: "control"; text: "PNG"; x: 20; y: 20; width: 60; height: 30
            InteractionFeedback { objectName: "feedback" }
        }
    })";

class Stage : public Scene
{
public:
    Stage()
    {
        show(::control);
        button = find(QStringLiteral("control"));
        feedback = find(QStringLiteral("feedback"));
        leave(); // the pointer may rest where an earlier test left it
    }

    Qt::CursorShape cursor() const { return window.cursor().shape(); }
    bool isHovered() const { return feedback->property("hovered").toBool(); }
    // Blank left of the label; the window behind is white.
    QColor colour() { return window.grabWindow().pixelColor(25, 26); }
    void leave() { QTest::mouseMove(&window, QPoint(150, 80)); }

    QQuickItem *button;
    QQuickItem *feedback;
};

const QColor highlighted(0xEB, 0xF0, 0xFC); // iris at 9 % over white

bool isClose(const QColor &a, const QColor &b)
{
    return qAbs(a.red() - b.red()) <= 2 && qAbs(a.green() - b.green()) <= 2 && qAbs(a.blue() - b.blue()) <= 2;
}

} // namespace

class InteractionFeedbackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHighlightAndShowTheHandOnlyUnderThePointer()
    {
        Stage stage;
        stage.leave();
        QCOMPARE(stage.cursor(), Qt::ArrowCursor);
        for (int visit = 0; visit < 3; ++visit) {
            stage.hover(stage.button);
            QCOMPARE(stage.cursor(), Qt::PointingHandCursor);
            QTRY_VERIFY(isClose(stage.colour(), highlighted));
            stage.leave();
            QCOMPARE(stage.cursor(), Qt::ArrowCursor);
            QTRY_VERIFY(isClose(stage.colour(), Qt::white));
        }
    }

    void shouldLeaveClicksToTheControl()
    {
        Stage stage;
        QSignalSpy clicked(stage.button, SIGNAL(clicked()));
        stage.click(stage.button);
        QCOMPARE(clicked.size(), 1);
    }

    void shouldDropHandAndHighlightWhenDisabledUnderThePointer()
    {
        Stage stage;
        stage.hover(stage.button);
        QCOMPARE(stage.cursor(), Qt::PointingHandCursor);
        stage.button->setEnabled(false);
        QTRY_COMPARE(stage.cursor(), Qt::ArrowCursor);
        QTRY_VERIFY(isClose(stage.colour(), Qt::white));
    }

    void shouldKnowThePointerEvenWhileDisabled()
    {
        Stage stage;
        stage.button->setEnabled(false);
        stage.hover(stage.button);
        QVERIFY(stage.isHovered());
        QCOMPARE(stage.cursor(), Qt::ArrowCursor);
        QVERIFY(isClose(stage.colour(), Qt::white));
        stage.button->setEnabled(true);
        QTRY_VERIFY(isClose(stage.colour(), highlighted));
    }

    void shouldNotLeaveTheHandBehindWhenTheControlGoes()
    {
        Stage stage;
        stage.hover(stage.button);
        QCOMPARE(stage.cursor(), Qt::PointingHandCursor);
        stage.button->setVisible(false);
        QTRY_COMPARE(stage.cursor(), Qt::ArrowCursor);
    }

    void shouldComeAndGoAtOnceWithReducedMotion()
    {
        Stage stage;
        stage.appearance.setMotion(SystemAppearance::Motion::Reduced);
        stage.leave();
        stage.hover(stage.button);
        QVERIFY(isClose(stage.colour(), highlighted));
        stage.leave();
        QVERIFY(isClose(stage.colour(), Qt::white));
    }
};

QTEST_MAIN(InteractionFeedbackTest)
#include "InteractionFeedbackTest.moc"
