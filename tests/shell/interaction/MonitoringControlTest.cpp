#include "ModelScene.h"
#include "MonitoringControlController.h"

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

    void shouldShowAndTellItsState()
    {
        ModelScene scene;
        QQuickItem *card = scene.show("import Lumaport.Interaction\nMonitoringControl { width: 400 }");
        // In the badge's corner, beside its symbol: the accent at 14 % over the card's 6 %.
        const auto isGreen = [&scene] {
            const QColor pixel = scene.window.grabWindow().pixelColor(13 + 5, 13 + 12);
            return pixel.green() > pixel.red();
        };
        QVERIFY(isGreen());
        scene.model.setIsWatching(false);
        QCOMPARE(scene.find("monitoringButton")->property("text").toString(), "Resume");
        QTRY_VERIFY(!isGreen());
        QList<QAccessible::Role> roles;
        for (int child = 0; child < Scene::accessible(card)->childCount(); ++child) {
            roles << Scene::accessible(card)->child(child)->role();
        }
        QCOMPARE(roles, (QList{QAccessible::Graphic, QAccessible::StaticText, QAccessible::StaticText,
                               QAccessible::Button}));
    }
};

QTEST_MAIN(MonitoringControlTest)
#include "MonitoringControlTest.moc"
