#include "DefaultsStore.h"
#include "MainViewController.h"
#include "ModelScene.h"
#include "PhotoLandingStageController.h"

#include <QAccessible>
#include <QMimeData>

namespace {

constexpr auto mainView = R"(
    import Lumaport.Views
    MainView { width: 800; height: 620 }
)";

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
        m_fixture->defaults->store(QStringLiteral("hasSeenSignatureWelcome"), true);
        m_controller = std::make_unique<MainViewController>(m_scene->model, m_fixture->defaults);
    }

    void cleanup()
    {
        m_scene->close();
        m_controller.reset();
        m_scene.reset();
    }

    void shouldTakeFilesDroppedAnywhereOnTheLandingWorkspace()
    {
        show();
        const QUrl photo = m_fixture->write(QStringLiteral("IMG_1.HEIC"));
        QVERIFY(enter({photo}));
        QCOMPARE(text("headline"), QStringLiteral("Drop it. We’ve got it."));
        QVERIFY(m_controller->stage()->isExpanded());
        QVERIFY(drop({photo, m_fixture->write(QStringLiteral("notes.txt"))}));
        QCOMPARE(text("headline"), QStringLiteral("Your photo just landed."));
        QCOMPARE(m_fixture->model().items().size(), 1);
    }

    void shouldForgetADragThatLeaves()
    {
        show();
        QVERIFY(enter({m_fixture->url(QStringLiteral("IMG_1.HEIC"))}));
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&m_scene->window, &leave);
        QVERIFY(!m_fixture->model().isDropTargeted());
    }

    void shouldRefuseADropWithoutPhotos()
    {
        show();
        const QUrl picture = m_fixture->url(QStringLiteral("holiday.jpg"));
        QVERIFY(enter({picture}));
        QVERIFY(!drop({picture}));
        QCOMPARE(m_fixture->model().lastEventText(), QStringLiteral("Drop HEIC or HEIF photos here"));
        QVERIFY(!m_fixture->model().isDropTargeted());
    }

    void shouldLetADragOfTextPass()
    {
        show();
        QMimeData mime;
        mime.setText(QStringLiteral("IMG_1.HEIC"));
        QVERIFY(!enter(mime));
        QVERIFY(!m_fixture->model().isDropTargeted());
    }

    void shouldFitTheSmallestWindowWithItsOptionsOpen()
    {
        const QQuickItem *view = show();
        m_controller->setOptionsVisible(true);
        const QQuickItem *scroll = m_scene->find(QStringLiteral("scroll"));
        QCOMPARE(scroll->width(), view->width() - 258.0);
        // Nothing of the column is wider than the room for it, and no text is cut.
        checkNothingIsCut(scroll, scroll->mapRectToScene(scroll->boundingRect()));
    }

    void shouldKeepItsPlaceWhenTheTextsChange()
    {
        show();
        const auto place = [this] {
            const QQuickItem *button = m_scene->find(QStringLiteral("chooseButton"));
            return button->mapToScene(QPointF());
        };
        const QPointF before = place();
        m_fixture->model().convertManually({m_fixture->write(QStringLiteral("IMG_1.HEIC"))});
        QCOMPARE(place(), before);
        ModelFixture::turn();
        QCOMPARE(place(), before);
        m_fixture->engine->succeed(QStringLiteral("IMG_1.png"));
        QCOMPARE(place(), before);
        m_fixture->model().setIsWatching(false);
        QCOMPARE(place(), before);
    }

    void shouldNotShowOneCardThroughTheOtherWhileItSwitches()
    {
        m_scene->appearance.setMotion(SystemAppearance::Motion::Full);
        show();
        QTest::mouseMove(&m_scene->window, QPoint(300, 30));
        const QPoint edge = m_scene->find(QStringLiteral("card2"))->mapToScene(QPointF(3, 60)).toPoint();
        const auto isBright = [&] { return m_scene->window.grabWindow().pixelColor(edge).red() > 240; };
        QVERIFY(isBright());
        m_controller->setShowingHistory(true);
        while (m_scene->find(QStringLiteral("headline"))) {
            QVERIFY(isBright()); // between a card's white and the window's ground
            QCoreApplication::processEvents();
        }
    }

    void shouldSwitchItsWorkspacesByPointerKeysAndAssistiveInterface()
    {
        show();
        QQuickItem *airDrop = m_scene->find(QStringLiteral("airDropTab"));
        QQuickItem *recent = m_scene->find(QStringLiteral("recentPhotosTab"));
        m_scene->click(recent);
        QVERIFY(m_controller->showingHistory());
        QVERIFY(!m_scene->find(QStringLiteral("headline")));
        QVERIFY(QAccessible::queryAccessibleInterface(recent)->state().selected);
        QVERIFY(!QAccessible::queryAccessibleInterface(airDrop)->state().selected);
        QCOMPARE(QAccessible::queryAccessibleInterface(recent)->role(), QAccessible::PageTab);
        recent->forceActiveFocus(Qt::TabFocusReason);
        m_scene->press(Qt::Key_Left);
        QVERIFY(!m_controller->showingHistory());
        QVERIFY(airDrop->hasActiveFocus());
        m_scene->press(Qt::Key_Left); // there is none further left
        QVERIFY(!m_controller->showingHistory());
        m_scene->press(Qt::Key_Right);
        QVERIFY(m_controller->showingHistory());
        QVERIFY(recent->hasActiveFocus());
        m_controller->setShowingHistory(false);
        QAccessible::queryAccessibleInterface(recent)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
        QVERIFY(m_controller->showingHistory());
    }

    void shouldKeepItsWorkspaceWhenTheWindowBecomesActiveAgain()
    {
        show();
        QQuickItem *recent = m_scene->find(QStringLiteral("recentPhotosTab"));
        m_scene->find(QStringLiteral("airDropTab"))->forceActiveFocus(Qt::TabFocusReason);
        m_scene->click(recent);
        QVERIFY2(recent->hasActiveFocus(), "the ring goes with the choice");
        QWindow other;
        other.show();
        other.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        m_scene->window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&m_scene->window));
        QVERIFY(m_controller->showingHistory());
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
                 QStringLiteral("segment0 optionsButton monitoringButton airDropTab folderButton stageButton "
                                "chooseButton segment0"));
    }

    void shouldScrollToTheControlThatTheKeyboardReaches()
    {
        QQuickItem *view = show();
        view->setHeight(330);
        QQuickItem *choose = m_scene->find(QStringLiteral("chooseButton"));
        const auto bottom = [&] { return choose->mapToItem(view, QPointF(0, choose->height())).y(); };
        QVERIFY(bottom() > view->height());
        choose->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(bottom() < view->height());
    }

    void shouldWriteAChoiceOnce()
    {
        QQuickItem *view = show();
        for (const QQuickItem *segment : all(view, QStringLiteral("segment1"))) {
            m_scene->click(segment);
        }
        QCOMPARE(m_scene->model.settings().format, OutputFormat::jpeg);
        QCOMPARE(m_scene->model.appearanceMode(), AppearanceMode::light);
        QCOMPARE(m_fixture->defaults->stored["conversionSettings"].size(), 1);
        QCOMPARE(m_fixture->defaults->stored["appearanceMode"].size(), 1);
    }

    void shouldGiveItsTopBarTheRoomOfItsTallestControl()
    {
        show();
        const QQuickItem *below = m_scene->find(QStringLiteral("scroll"));
        QCOMPARE(below->mapToScene(QPointF()).y(), 10 + 36 + 10.0);
        const QQuickItem *options = m_scene->find(QStringLiteral("optionsButton"));
        QCOMPARE(options->size(), QSizeF(12 + 20 + 12, 8 + 16 + 8));
    }

    void shouldOpenAndCloseItsOptions()
    {
        show();
        QQuickItem *button = m_scene->find(QStringLiteral("optionsButton"));
        const auto spoken = [button] {
            return QAccessible::queryAccessibleInterface(button)->text(QAccessible::Description);
        };
        QCOMPARE(spoken(), QStringLiteral("Collapsed"));
        m_scene->click(button);
        QVERIFY(m_controller->optionsVisible());
        QCOMPARE(spoken(), QStringLiteral("Expanded"));
        QVERIFY(m_scene->find(QStringLiteral("optionsPanel")));
        m_scene->click(button);
        QVERIFY(!m_scene->find(QStringLiteral("optionsPanel")));
    }

    void shouldSlideItsOptionsInAndThenRest()
    {
        m_scene->appearance.setMotion(SystemAppearance::Motion::Full);
        QQuickItem *view = show();
        m_controller->setOptionsVisible(true);
        QCOMPARE(view->property("optionsShown").toDouble(), 0.0);
        double last = 0.0;
        while (last < 1.0) {
            QVERIFY(QTest::qWaitFor([&] { return view->property("optionsShown").toDouble() > last; }));
            last = view->property("optionsShown").toDouble();
        }
        QCOMPARE(last, 1.0);
    }

    void shouldBeDeafInOptionsThatSlideOut()
    {
        m_scene->appearance.setMotion(SystemAppearance::Motion::Full);
        const QQuickItem *view = show();
        m_controller->setOptionsVisible(true);
        QTRY_COMPARE(view->property("optionsShown").toDouble(), 1.0);
        m_controller->setOptionsVisible(false);
        m_scene->click(m_scene->find(QStringLiteral("changeFolder")));
        QVERIFY(m_fixture->panel->requests.isEmpty());
    }

    void shouldHandTheKeyboardBackWhenItsOptionsClose()
    {
        show();
        m_controller->setOptionsVisible(true);
        m_scene->find(QStringLiteral("close"))->forceActiveFocus(Qt::TabFocusReason);
        m_scene->press(Qt::Key_Return);
        QVERIFY(!m_controller->optionsVisible());
        QQuickItem *button = m_scene->find(QStringLiteral("optionsButton"));
        QVERIFY(button->hasActiveFocus());
        QVERIFY(button->property("visualFocus").toBool());
        m_scene->press(Qt::Key_Return);
        QVERIFY(m_controller->optionsVisible());
        m_scene->click(m_scene->find(QStringLiteral("close")));
        QVERIFY(button->hasActiveFocus());
        QVERIFY2(!button->property("visualFocus").toBool(), "no ring after a click");
    }

    void shouldAskForPhotosFromTheStage()
    {
        show();
        m_scene->hover(m_scene->find(QStringLiteral("stageButton")));
        QVERIFY(m_controller->stage()->isExpanded());
        m_scene->click(m_scene->find(QStringLiteral("stageButton")));
        m_scene->click(m_scene->find(QStringLiteral("chooseButton")));
        QCOMPARE(m_fixture->panel->requests.size(), 2);
        m_scene->click(m_scene->find(QStringLiteral("folderButton")));
        QCOMPARE(m_fixture->workspace->opened.size(), 1);
    }

    void shouldHideEverythingWhileTheWelcomeIsShown()
    {
        show();
        QQuickItem *choose = m_scene->find(QStringLiteral("chooseButton"));
        choose->forceActiveFocus(Qt::TabFocusReason);
        m_fixture->model().setWelcomeReplayToken(1);
        ModelFixture::turn();
        QVERIFY(!m_scene->find(QStringLiteral("chooseButton")));
        m_scene->press(Qt::Key_Space);
        QVERIFY(m_fixture->panel->requests.isEmpty());
        m_scene->press(Qt::Key_Return); // with reduced motion its button is there at once
        QVERIFY(!m_controller->showsWelcome());
        QCOMPARE(m_scene->find(QStringLiteral("chooseButton")), choose);
        QVERIFY2(choose->hasActiveFocus(), "the keyboard is where it was");
    }

private:
    QQuickItem *show()
    {
        return m_scene->show(mainView,
                             {{QStringLiteral("controller"), QVariant::fromValue(m_controller.get())}});
    }

    QPoint stage() const { return m_scene->centre(m_scene->find(QStringLiteral("headline"))); }

    bool enter(const QMimeData &mime)
    {
        QDragEnterEvent event(stage(), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&m_scene->window, &event);
        return event.isAccepted();
    }

    bool enter(const QList<QUrl> &urls)
    {
        QMimeData mime;
        mime.setUrls(urls);
        return enter(mime);
    }

    bool drop(const QList<QUrl> &urls)
    {
        QMimeData mime;
        mime.setUrls(urls);
        QDragMoveEvent move(stage(), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&m_scene->window, &move);
        QDropEvent event(stage(), Qt::CopyAction, &mime, Qt::LeftButton, {});
        event.setAccepted(false);
        QCoreApplication::sendEvent(&m_scene->window, &event);
        return event.isAccepted();
    }

    QString text(const char *name) const
    {
        return m_scene->find(QLatin1String(name))->property("text").toString();
    }

    static QList<QQuickItem *> all(QQuickItem *item, const QString &name)
    {
        QList<QQuickItem *> found;
        if (item->objectName() == name && item->isVisible()) {
            found << item;
        }
        for (QQuickItem *child : item->childItems()) {
            found << all(child, name);
        }
        return found;
    }

    static void checkNothingIsCut(const QQuickItem *item, const QRectF &room)
    {
        for (const QQuickItem *child : item->childItems()) {
            if (!child->isVisible() || child->opacity() == 0.0) {
                continue;
            }
            const QVariant truncated = child->property("truncated");
            QVERIFY2(!truncated.toBool(), qPrintable(child->property("text").toString()));
            if (truncated.isValid()) {
                const QRectF place = child->mapRectToScene(child->boundingRect());
                QVERIFY2(place.left() >= room.left() - 0.5 && place.right() <= room.right() + 0.5,
                         qPrintable(child->property("text").toString()));
            }
            checkNothingIsCut(child, room);
        }
    }

    std::unique_ptr<ModelScene> m_scene;
    ModelFixture *m_fixture = nullptr; ///< the scene's
    std::unique_ptr<MainViewController> m_controller;
};

QTEST_MAIN(MainViewTest)
#include "MainViewTest.moc"
