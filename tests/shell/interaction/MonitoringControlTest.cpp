#include "ModelScene.h"
#include "MonitoringControlController.h"

#include <QAccessible>
#include <QSignalSpy>

class MonitoringControlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOfferToRetryWhileTheFolderCannotBeWatchedWhateverTheSwitchSays()
    {
        ModelFixture fixture;
        QDir(fixture.home.path()).rmdir("Photos");
        AppModel &model = fixture.launch();
        MonitoringControlController controller(model);
        QSignalSpy changed(&controller, &MonitoringControlController::changed);
        for (const bool isWatching : {true, false}) {
            model.setIsWatching(isWatching);
            QVERIFY(!controller.isAutomatic());
            QCOMPARE(controller.buttonTitle(), "Retry");
        }
        QDir(fixture.home.path()).mkdir("Photos");
        changed.clear();
        controller.act();
        QVERIFY(model.monitorAvailable());
        QVERIFY(!changed.isEmpty());
        QVERIFY2(!model.isWatching(), "retrying does not resume");
        QCOMPARE(controller.buttonTitle(), "Resume");
    }

    void shouldPauseAndResumeThroughTheAssistiveInterface()
    {
        ModelScene scene;
        QQuickItem *card = scene.show("import Lumaport.Interaction\nMonitoringControl { width: 400 }");
        QQuickItem *button = scene.find("monitoringButton");
        // In the badge's corner, beside its symbol: the accent at 14 % over the card's 6 %.
        const auto isGreen = [&scene] {
            const QColor pixel = scene.window.grabWindow().pixelColor(13 + 5, 13 + 12);
            return pixel.green() > pixel.red();
        };
        QCOMPARE(button->property("text").toString(), "Pause");
        QVERIFY(isGreen());
        auto *press = QAccessible::queryAccessibleInterface(button)->actionInterface();
        press->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(!scene.model.isWatching());
        QCOMPARE(button->property("text").toString(), "Resume");
        QTRY_VERIFY(!isGreen());
        press->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(scene.model.isWatching());

        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(card);
        QList<QAccessible::Role> roles;
        for (int child = 0; child < spoken->childCount(); ++child) {
            roles << spoken->child(child)->role();
            QVERIFY(!spoken->child(child)->text(QAccessible::Name).isEmpty());
        }
        QCOMPARE(roles, (QList{QAccessible::Graphic, QAccessible::StaticText, QAccessible::StaticText,
                               QAccessible::Button}));
    }

    void shouldWrapALongDetailRatherThanCutIt()
    {
        ModelScene scene;
        const QQuickItem *card = scene.show("import Lumaport.Interaction\nMonitoringControl { width: 320 }");
        const double height = card->implicitHeight();
        scene.watch("A folder with quite a long name for its photos");
        QTRY_VERIFY(card->implicitHeight() > height + 10);
    }
};

QTEST_MAIN(MonitoringControlTest)
#include "MonitoringControlTest.moc"
