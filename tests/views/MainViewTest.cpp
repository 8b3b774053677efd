#include "DefaultsStore.h"
#include "MainViewController.h"
#include "ModelScene.h"
#include "PhotoLandingStageController.h"

#include <QAnimationDriver>
#include <QMimeData>

namespace {

/// The clock of all eased animations, in the test's hands.
class AnimationClock : public QAnimationDriver
{
public:
    AnimationClock() { install(); }
    ~AnimationClock() override { uninstall(); }

    qint64 elapsed() const override { return m_elapsed; }
    void pass(int milliseconds)
    {
        QCoreApplication::processEvents(); // an animation starts with the next event
        m_elapsed += milliseconds;
        advanceAnimation();
    }

private:
    qint64 m_elapsed = 0;
};

} // namespace

class MainViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scene = std::make_unique<ModelScene>();
        m_scene->appearance.setMotion(SystemAppearance::Motion::Reduced);
        m_fixture = &m_scene->fixture;
        m_fixture->defaults->store("hasSeenSignatureWelcome", true);
        m_controller = std::make_unique<MainViewController>(m_scene->model, m_fixture->defaults);
    }

    void cleanup()
    {
        m_scene->close();
        m_controller.reset();
        m_scene.reset();
    }

    void shouldTakePhotosThatAreDroppedAndNothingElse_data()
    {
        QTest::addColumn<QStringList>("names"); // none: a text is dragged
        QTest::addColumn<bool>("isDropTarget");
        QTest::addColumn<bool>("isAccepted");
        QTest::newRow("a photo and a text file") << QStringList{"notes.txt", "IMG_1.HEIC"} << true << true;
        QTest::newRow("no photo") << QStringList{"holiday.jpg"} << true << false;
        QTest::newRow("the folder itself") << QStringList{""} << true << false;
        QTest::newRow("a photo elsewhere") << QStringList{"https://example.org/IMG_1.HEIC"} << false << false;
        QTest::newRow("a text") << QStringList() << false << false;
    }

    void shouldTakePhotosThatAreDroppedAndNothingElse()
    {
        QFETCH(QStringList, names);
        QFETCH(bool, isDropTarget);
        QFETCH(bool, isAccepted);
        m_fixture->write("IMG_1.HEIC");
        QMimeData files;
        QList<QUrl> urls;
        for (const QString &name : std::as_const(names)) {
            urls << (name.startsWith("https:") ? QUrl(name) : m_fixture->url(name));
        }
        names.isEmpty() ? files.setText("IMG_1.HEIC") : files.setUrls(urls);
        show();
        const QPoint headline = m_scene->centre(m_scene->find("headline"));
        const Qt::DropActions proposed = Qt::CopyAction | Qt::MoveAction; // with Shift a move
        const auto send = [this](auto event) {
            QCoreApplication::sendEvent(&m_scene->window, &event);
            return event.isAccepted() &&
                   (event.type() == QEvent::DragEnter || event.dropAction() == Qt::CopyAction);
        };
        const auto enter = [&] {
            return send(QDragEnterEvent(headline, proposed, &files, Qt::LeftButton, Qt::ShiftModifier));
        };
        QCOMPARE(enter(), isDropTarget);
        QCOMPARE(m_scene->findText("Drop it. We’ve got it.") != nullptr, isDropTarget);
        QCOMPARE(m_controller->stage()->isExpanded(), isDropTarget);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&m_scene->window, &leave);
        QVERIFY(m_scene->findText("AirDrop it. It’s ready."));
        enter();
        QCOMPARE(send(QDragMoveEvent(headline, proposed, &files, Qt::LeftButton, Qt::ShiftModifier)),
                 isDropTarget);
        QCOMPARE(send(QDropEvent(headline, proposed, &files, Qt::LeftButton, Qt::ShiftModifier)), isAccepted);
        QCOMPARE(m_scene->findText("Your photo just landed.") != nullptr, isAccepted);
        QCOMPARE(m_scene->findText("IMG_1.HEIC landed") != nullptr, isAccepted);
        if (isDropTarget && !isAccepted) {
            QCOMPARE(m_scene->model.lastEventText(), "Drop HEIC or HEIF photos here");
        }
    }

    void shouldKeepItsPlaceWhenTheTextsChange()
    {
        show();
        const QQuickItem *button = m_scene->find("chooseButton");
        const QPointF before = button->mapToScene(QPointF());
        const std::array<std::function<void()>, 4> changes{
            [&] { m_scene->model.convertManually({m_fixture->write("IMG_1.HEIC")}); },
            ModelFixture::turn,
            [&] { m_fixture->engine->succeed("IMG_1.png"); },
            [&] { m_scene->model.setIsWatching(false); },
        };
        for (const auto &change : changes) {
            change();
            QCOMPARE(button->mapToScene(QPointF()), before);
        }
    }

    void shouldNotShowOneCardThroughTheOtherWhileItSwitches()
    {
        m_scene->appearance.setMotion(SystemAppearance::Motion::Full);
        show();
        QTest::mouseMove(&m_scene->window, QPoint(300, 30));
        const QPoint edge = m_scene->find("card2")->mapToScene(QPointF(3, 60)).toPoint();
        const auto isBright = [&] { return m_scene->window.grabWindow().pixelColor(edge).red() > 240; };
        QVERIFY(isBright());
        m_controller->setProperty("showingHistory", true);
        while (m_scene->find("headline")) {
            QVERIFY(isBright()); // between a card's white and the window's ground
            QCoreApplication::processEvents();
        }
    }

    void shouldSwitchItsWorkspacesByPointerAndKeys()
    {
        show();
        QQuickItem *airDrop = m_scene->find("airDropTab");
        QQuickItem *recent = m_scene->find("recentPhotosTab");
        m_scene->click(recent);
        QVERIFY(showsHistory());
        QVERIFY(!m_scene->find("headline"));
        QVERIFY(Scene::accessible(recent)->state().selected);
        QVERIFY(!Scene::accessible(airDrop)->state().selected);
        recent->forceActiveFocus(Qt::TabFocusReason);
        for (int press = 0; press < 2; ++press) { // the second has no tab to go to
            m_scene->press(Qt::Key_Left);
            QVERIFY(!showsHistory());
            QVERIFY(airDrop->hasActiveFocus());
        }
        m_scene->press(Qt::Key_Right);
        QVERIFY(showsHistory());
        QVERIFY(recent->hasActiveFocus());
    }

    void shouldKeepItsWorkspaceWhenTheWindowBecomesActiveAgain()
    {
        show();
        QQuickItem *recent = m_scene->find("recentPhotosTab");
        m_scene->find("airDropTab")->forceActiveFocus(Qt::TabFocusReason);
        m_scene->click(recent);
        QVERIFY2(recent->hasActiveFocus(), "the focus follows the choice");
        QWindow other;
        other.show();
        other.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        m_scene->window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&m_scene->window));
        QVERIFY(showsHistory());
    }

    void shouldLeadTheKeyboardFromTopToBottom()
    {
        show();
        QStringList way;
        for (int stop = 0; stop < 8; ++stop) {
            m_scene->press(Qt::Key_Tab);
            way << m_scene->window.activeFocusItem()->objectName();
        }
        QCOMPARE(way.join(u' '),
                 "segment0 optionsButton monitoringButton airDropTab folderButton stageButton "
                 "chooseButton segment0");
    }

    void shouldOpenItsOptionsAndHandTheKeyboardBackWhenTheyClose()
    {
        show();
        QQuickItem *button = m_scene->find("optionsButton");
        const auto spoken = [button] { return Scene::accessible(button)->text(QAccessible::Description); };
        QCOMPARE(spoken(), "Collapsed");
        m_scene->click(button);
        QCOMPARE(spoken(), "Expanded");
        m_scene->find("close")->forceActiveFocus(Qt::TabFocusReason);
        m_scene->press(Qt::Key_Return);
        QVERIFY(!m_scene->find("optionsPanel"));
        QVERIFY(button->hasActiveFocus());
        QVERIFY(button->property("visualFocus").toBool());
        m_scene->press(Qt::Key_Return);
        m_scene->find("close")->forceActiveFocus(Qt::TabFocusReason);
        m_scene->press(Qt::Key_Escape);
        QVERIFY(!m_scene->find("optionsPanel") && button->hasActiveFocus());
        m_scene->press(Qt::Key_Return);
        m_scene->click(m_scene->find("close"));
        QVERIFY(button->hasActiveFocus());
        QVERIFY2(!button->property("visualFocus").toBool(), "no ring after a click");
        for (const bool opened : {true, false}) {
            m_scene->click(button);
            QCOMPARE(m_scene->find("optionsPanel") != nullptr, opened);
        }
    }

    void shouldScrollByKeysAndKeepItsPlaceWhilePhotosArrive()
    {
        show();
        QList<ConversionItem> items;
        for (const char *name : {"a", "b", "c", "d", "e", "f", "g", "h", "i"}) {
            items << m_scene->item(name, ConversionStatus::queued);
        }
        m_scene->model.setItems(items);
        m_controller->setProperty("showingHistory", true);
        m_scene->window.grabWindow(); // the rows get their places with the next frame
        const auto placeOfLast = [&] { return m_scene->findText("i")->mapToScene(QPointF()).y(); };
        QVERIFY(placeOfLast() > 620);
        m_scene->press(Qt::Key_End);
        const double place = placeOfLast();
        QVERIFY(place < 620);
        m_scene->model.setItems(QList{m_scene->item("new", ConversionStatus::queued)} + items);
        m_scene->window.grabWindow();
        QCOMPARE(placeOfLast(), place);
        m_scene->press(Qt::Key_Home);
        QVERIFY(placeOfLast() > 620);
        m_scene->press(Qt::Key_PageDown);
        QVERIFY(placeOfLast() < 620);
        m_scene->press(Qt::Key_PageUp);
        QVERIFY(placeOfLast() > 620);
    }

    void shouldPassTheKeyboardOnWhenItsControlEnds()
    {
        show();
        m_scene->model.setItems({m_scene->item("a.heic", ConversionStatus::ready)});
        showOptions(true);
        m_controller->setProperty("showingHistory", true);
        for (const auto &[control, next] :
             {std::pair{"clearHistory", "recentPhotosTab"}, std::pair{"convertExisting", "openFolder"}}) {
            m_scene->find(control)->forceActiveFocus(Qt::TabFocusReason);
            m_scene->press(Qt::Key_Return);
            QTRY_COMPARE(m_scene->window.activeFocusItem()->objectName(), next);
        }
    }

    void shouldSlideItsOptionsAndTakeNoClicksOnTheirWayOut()
    {
        m_scene->appearance.setMotion(SystemAppearance::Motion::Full);
        const QQuickItem *view = show();
        const auto shown = [&] { return view->property("optionsShown").toDouble(); };
        AnimationClock clock;
        showOptions(true);
        clock.pass(0);
        QCOMPARE(shown(), 0.0);
        clock.pass(110);
        QVERIFY2(qAbs(shown() - 0.5) < 0.01, qPrintable(QString::number(shown())));
        clock.pass(110);
        QCOMPARE(shown(), 1.0);
        showOptions(false);
        clock.pass(0);
        m_scene->click(m_scene->find("changeFolder"));
        QVERIFY(m_fixture->panel->requests.isEmpty());
        clock.pass(220);
        QVERIFY(!m_scene->find("optionsPanel"));
    }

    void shouldAskForPhotosFromTheStage()
    {
        show();
        m_scene->hover(m_scene->find("stageButton"));
        QVERIFY(m_controller->stage()->isExpanded());
        m_scene->click(m_scene->find("stageButton"));
        m_scene->click(m_scene->find("chooseButton"));
        QCOMPARE(m_fixture->panel->requests.size(), 2);
        m_scene->click(m_scene->find("folderButton"));
        QCOMPARE(m_fixture->workspace->opened.size(), 1);
        m_scene->watch("R&D");
        QVERIFY(m_scene->findText("R&D"));
        QTest::keyClick(&m_scene->window, Qt::Key_D, Qt::AltModifier);
        QCOMPARE(m_fixture->workspace->opened.size(), 1);
    }

    void shouldHideEverythingWhileTheWelcomeIsShown()
    {
        show();
        QQuickItem *choose = m_scene->find("chooseButton");
        choose->forceActiveFocus(Qt::TabFocusReason);
        m_scene->model.setWelcomeReplayToken(1);
        ModelFixture::turn();
        QVERIFY(!m_scene->find("chooseButton"));
        m_scene->press(Qt::Key_Space);
        QVERIFY(m_fixture->panel->requests.isEmpty());
        m_scene->press(Qt::Key_Return); // with reduced motion its button is there at once
        QVERIFY(!m_controller->showsWelcome());
        QCOMPARE(m_scene->find("chooseButton"), choose);
        QVERIFY2(choose->hasActiveFocus(), "the keyboard is where it was");
    }

private:
    QQuickItem *show()
    {
        return m_scene->show("import Lumaport.Views\nMainView { width: 800; height: 620 }",
                             {{"controller", QVariant::fromValue(m_controller.get())}});
    }

    void showOptions(bool shown) { m_controller->setProperty("optionsVisible", shown); }
    bool showsHistory() const { return m_controller->property("showingHistory").toBool(); }

    std::unique_ptr<ModelScene> m_scene;
    ModelFixture *m_fixture = nullptr; ///< the scene's
    std::unique_ptr<MainViewController> m_controller;
};

QTEST_MAIN(MainViewTest)
#include "MainViewTest.moc"
