#include "ModelScene.h"
#include "MonitoringControlController.h"

#include <QAccessible>
#include <QDir>
#include <QSignalSpy>

class MonitoringControlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPauseAndResume()
    {
        ModelFixture fixture;
        AppModel &model = fixture.launch();
        MonitoringControlController controller;
        controller.setModel(&model);
        QVERIFY(controller.isAutomatic());
        QCOMPARE(controller.buttonTitle(), QStringLiteral("Pause"));
        QSignalSpy changed(&controller, &MonitoringControlController::stateChanged);
        controller.act();
        QVERIFY(!model.isWatching());
        QVERIFY(!changed.isEmpty());
        QVERIFY(!controller.isAutomatic());
        QCOMPARE(controller.buttonTitle(), QStringLiteral("Resume"));
        controller.act();
        QVERIFY(model.isWatching());
    }

    void shouldOfferToRetryWhileTheFolderCannotBeWatchedWhateverTheSwitchSays()
    {
        ModelFixture fixture;
        QDir(fixture.home.path()).rmdir(QStringLiteral("Photos"));
        AppModel &model = fixture.launch();
        MonitoringControlController controller;
        controller.setModel(&model);
        for (const bool isWatching : {true, false}) {
            model.setIsWatching(isWatching);
            QVERIFY(!controller.isAutomatic());
            QCOMPARE(controller.buttonTitle(), QStringLiteral("Retry"));
        }
        QDir(fixture.home.path()).mkdir(QStringLiteral("Photos"));
        controller.act();
        QVERIFY(model.monitorAvailable());
        QVERIFY2(!model.isWatching(), "retrying does not resume");
        QCOMPARE(controller.buttonTitle(), QStringLiteral("Resume"));
    }

    void shouldShowTheStateInTheAccentAndPressThroughTheAssistiveInterface()
    {
        ModelScene scene;
        scene.show("import QtQuick\nimport Lumaport.Interaction\n"
                   "Rectangle { width: 420; height: 90; color: 'white'; MonitoringControl { x: 10; y: 10; "
                   "width: 400 } }");
        QQuickItem *button = scene.find(QStringLiteral("monitoringButton"));
        // The badge's corner, where the symbol leaves its ground free: the accent at 14 % over the card's 6
        // %.
        const auto ground = [&] {
            const QColor pixel = scene.window.grabWindow().pixelColor(10 + 13 + 5, 10 + 13 + 12);
            return pixel.green() > pixel.red() ? QStringLiteral("mint") : QStringLiteral("photon");
        };
        QCOMPARE(ground(), QStringLiteral("mint"));
        auto *press = QAccessible::queryAccessibleInterface(button)->actionInterface();
        press->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(!scene.model.isWatching());
        QCOMPARE(button->property("text").toString(), QStringLiteral("Resume"));
        QTRY_COMPARE(ground(), QStringLiteral("photon"));
    }

    void shouldKeepItsTextsAwayFromTheButtonAndSpeakOfItsSymbol()
    {
        ModelScene scene;
        const QQuickItem *card = scene.show("import Lumaport.Interaction\nMonitoringControl { width: 320 }");
        const QQuickItem *texts = scene.find(QStringLiteral("monitoringTexts"));
        const QQuickItem *button = scene.find(QStringLiteral("monitoringButton"));
        QVERIFY(texts);
        QCOMPARE(button->x() - texts->x() - texts->width(), 12 + 8 + 12.0);
        QCOMPARE(texts->x(), 13 + 38 + 12.0);
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(const_cast<QQuickItem *>(card));
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
        const QString name = QStringLiteral("A folder with quite a long name for its photos");
        QDir(scene.fixture.home.path()).mkdir(name);
        scene.fixture.panel->answer = {QUrl::fromLocalFile(scene.fixture.home.filePath(name))};
        scene.model.chooseWatchFolder();
        ModelFixture::turn();
        QTRY_VERIFY(card->implicitHeight() > height + 10);
    }
};

QTEST_MAIN(MonitoringControlTest)
#include "MonitoringControlTest.moc"
