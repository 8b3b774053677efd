#include "AppDelegate.h"

#include "AppModelSingleton.h"
#include "LoginItem.h"
#include "ModelFixture.h"
#include "PanelWindow.h"
#include "RecordingStatusItem.h"
#include "Symbol.h"
#include "SystemAppearanceSingleton.h"
#include "WriteFile.h"

#include <QCursor>
#include <QDir>
#include <QFile>
#include <QQmlEngine>
#include <QTest>

using namespace std::chrono_literals;

namespace {

/// The delegate with a model, its panel and a status item, on a desktop without a tray.
class ShellFixture : public ModelFixture
{
public:
    ShellFixture()
    {
        SystemAppearanceSingleton::provide(*appearance);
        AppModelSingleton::provide(launch());
        QObject::connect(&qmlEngine, &QQmlEngine::warnings, &qmlEngine, [](const QList<QQmlError> &warnings) {
            QFAIL(qPrintable(warnings.constFirst().toString()));
        });
        delegate.configureMenuBar(model(), [this] { ++mainOpened; });
        for (QWindow *window : QGuiApplication::topLevelWindows()) {
            panelWindow = panelWindow ? panelWindow : qobject_cast<PanelWindow *>(window);
        }
    }

    int mainOpened = 0;
    RecordingStatusItem *item = nullptr;
    PanelWindow *panelWindow = nullptr;
    QQmlEngine qmlEngine;
    LoginItem loginItem{home.filePath("autostart")};
    AppDelegate delegate{qmlEngine, loginItem, jobs, [this] {
                             auto made = std::make_unique<RecordingStatusItem>();
                             item = made.get();
                             return made;
                         }};
};

} // namespace

class AppDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheModelsStateInTheStatusItem_data()
    {
        QTest::addColumn<bool>("available");
        QTest::addColumn<bool>("watching");
        QTest::addColumn<bool>("busy");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<QString>("title");
        const QString on = "Auto-convert: On";
        const QString paused = "Auto-convert: Paused";
        const QString gone = "Folder unavailable";
        const QString arrows = "arrow.triangle.2.circlepath";
        const QString triangle = "exclamationmark.triangle";
        QTest::newRow("watching") << true << true << false << "photo.on.rectangle" << on;
        QTest::newRow("watching, busy") << true << true << true << arrows << on;
        QTest::newRow("paused") << true << false << false << "pause.circle" << paused;
        QTest::newRow("paused, busy") << true << false << true << arrows << paused;
        QTest::newRow("unavailable") << false << true << false << triangle << gone;
        QTest::newRow("unavailable, busy") << false << true << true << triangle << gone;
        QTest::newRow("unavailable, paused") << false << false << false << triangle << gone;
    }

    void shouldShowTheModelsStateInTheStatusItem()
    {
        QFETCH(bool, available);
        QFETCH(bool, watching);
        QFETCH(bool, busy);
        QFETCH(QString, symbol);
        QFETCH(QString, title);
        ShellFixture shell;
        shell.model().setIsWatching(watching);
        const QUrl photo = shell.write("IMG_1.HEIC");
        if (busy) {
            shell.model().convertManually({photo});
        }
        if (!available) {
            QVERIFY(QDir(shell.home.filePath("Photos")).removeRecursively());
            shell.model().retryMonitoring();
        }
        const StatusItemLook &look = shell.item->look;
        QVERIFY(QFile::exists(":/symbols/" + symbol + ".svg"));
        QCOMPARE(look.images.constFirst().width(), 16);
        QCOMPARE(look.images.constLast().width(), 64);
        for (const QImage &image : look.images) {
            QCOMPARE(image, Symbol::image(symbol, MenuIcon::tint, image.width()));
        }
        QCOMPARE(look.toolTip, "Lumaport: " + title + (busy ? ". Converting photos." : ""));
        QCOMPARE(look.accessibilityLabel, "Lumaport, " + title);
    }

    void shouldBeLegibleOnLightAndDarkPanels()
    {
        // Between these greys the contrast to #353535 and darker, and to #F6F5F4 and lighter, is 3:1 or more
        // (WCAG 2.1).
        QVERIFY(MenuIcon::tint.lightness() >= 0x7E && MenuIcon::tint.lightness() <= 0x8D);
    }

    void shouldConfigureOnceAndTouchTheItemOnlyForWhatShows()
    {
        ShellFixture shell;
        const RecordingStatusItem *item = shell.item;
        shell.delegate.configureMenuBar(shell.model(), [] { QFAIL("the first action stays"); });
        QCOMPARE(shell.item, item);
        item->command("Open Lumaport").action();
        QCOMPARE(shell.mainOpened, 1);

        shell.model().convertManually({shell.write("IMG_1.HEIC")});
        const int looks = item->looks;
        shell.model().convertManually({shell.write("IMG_2.HEIC")});
        shell.turn();
        ConversionSettings settings = shell.model().settings();
        settings.jpegQuality = 0.5;
        shell.model().setSettings(settings);
        QCOMPARE(item->looks, looks);
        QCOMPARE(item->menus, 1);
        shell.model().setIsWatching(false);
        QCOMPARE(item->menus, 2);
    }

    void shouldCloseThePanelWhenTheFocusGoesElsewhere()
    {
        ShellFixture shell;
        PanelWindow *panel = shell.panelWindow;
        QWindow other;
        other.show();
        other.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        Q_EMIT shell.item->activated();
        const auto closesWithoutFocus = [&] {
            const bool wasActive = QTest::qWaitForWindowActive(panel);
            other.requestActivate();
            return QTest::qWaitFor([&] { return !panel->isVisible(); }) && wasActive;
        };
        QVERIFY(closesWithoutFocus());
        Q_EMIT shell.item->activated();
        QVERIFY2(!panel->isVisible(), "the click that took the focus opens it again");
        Q_EMIT shell.item->activated();
        QVERIFY2(panel->isVisible(), "the next click does not open it");

        QVERIFY(closesWithoutFocus());
        shell.jobs->advance(1s);
        Q_EMIT shell.item->activated();
        QVERIFY2(panel->isVisible(), "a later click does not open it");

        QVERIFY(closesWithoutFocus());
        shell.item->placeOnScreen = QRect(QCursor::pos() + QPoint(100, 0), QSize(1, 1));
        Q_EMIT shell.item->activated();
        QVERIFY2(panel->isVisible(), "a click elsewhere counts as one on the item");
    }

    void shouldOfferInItsMenuWhatThePanelDoes()
    {
        ShellFixture shell;
        const auto command = [&shell](const QString &title) { return shell.item->command(title); };
        QVERIFY(!command("Auto-convert: On").isEnabled);
        command("Pause Watching").action();
        QVERIFY(!shell.model().isWatching());
        command("Resume Watching").action();
        QVERIFY(shell.model().isWatching());

        QCOMPARE(command("Convert to PNG").isChecked, std::optional(true));
        command("Convert to JPEG").action();
        QCOMPARE(shell.model().settings().format, OutputFormat::jpeg);
        QCOMPARE(command("Convert to PNG").isChecked, std::optional(false));
        QCOMPARE(command("Convert to JPEG").isChecked, std::optional(true));

        QVERIFY(!command("Reveal in Finder").isEnabled);
        shell.model().convertManually({shell.write("IMG_1.HEIC")});
        shell.turn();
        QVERIFY(!command("Reveal in Finder").isEnabled);
        shell.engine->succeed("IMG_1.png");
        QVERIFY(command("Reveal in Finder").isEnabled);
        command("Reveal in Finder").action();
        QCOMPARE(shell.workspace->revealed, QList{shell.url("IMG_1.png")});

        shell.write("IMG_2.HEIC");
        command("Convert HEIC Photos in Watched Folder").action();
        QCOMPARE(shell.model().items().size(), 3); // also the photo that is converted already

        command("Show Quick Panel").action();
        QVERIFY(shell.panelWindow->isVisible());
        command("Open Lumaport").action();
        QVERIFY(!shell.panelWindow->isVisible());
        QCOMPARE(shell.mainOpened, 1);

        QVERIFY(QDir(shell.home.filePath("Photos")).removeRecursively());
        shell.model().retryMonitoring();
        QVERIFY(QDir(shell.home.path()).mkdir("Photos"));
        command("Retry").action();
        QVERIFY(shell.model().monitorAvailable());
    }

    void shouldStartAtLoginAsLongAsTheEntryIsInForce()
    {
        ShellFixture shell;
        const auto isChecked = [&shell] { return shell.item->command("Start at Login").isChecked; };
        const QString entry = shell.home.filePath("autostart/io.lumaport.Lumaport.desktop");
        QCOMPARE(isChecked(), std::optional(false));
        shell.item->command("Start at Login").action();
        QCOMPARE(isChecked(), std::optional(true));
        for (const QByteArray key :
             {"Hidden=true", "X-GNOME-Autostart-enabled=false"}) { // by another program
            writeFile(entry, "[Desktop Entry]\nType=Application\n" + key + '\n');
            QTRY_COMPARE(isChecked(), std::optional(false));
            shell.item->command("Start at Login").action();
            QCOMPARE(isChecked(), std::optional(true));
        }
        QVERIFY(QFile::remove(entry));
        QTRY_COMPARE(isChecked(), std::optional(false));
        shell.item->command("Start at Login").action();
        shell.item->command("Start at Login").action();
        QVERIFY(!QFile::exists(entry));
    }

    void shouldOpenAWindowAtLoginAndTellThatWatchingGoesOnOnlyWithoutATray()
    {
        for (const bool hasTray : {true, false}) {
            ShellFixture shell;
            shell.delegate.openMainUnlessInTray();
            shell.item->shown = hasTray;
            shell.pass(10s);
            QCOMPARE(shell.mainOpened, hasTray ? 0 : 1);

            NotificationManager notifications(shell.center, shell.workspace);
            shell.delegate.lastWindowClosed(notifications, *shell.defaults);
            shell.delegate.lastWindowClosed(notifications, *shell.defaults);
            QCOMPARE(shell.center->requests.size(), hasTray ? 0 : 1);
        }
    }

    void shouldOpenTheWindowThenReplayTheWelcomeOneTurnLater()
    {
        ShellFixture shell;
        shell.item->command("Replay Signature Welcome").action();
        QCOMPARE(shell.mainOpened, 1);
        QCOMPARE(shell.model().welcomeReplayToken(), 0);
        shell.turn();
        QCOMPARE(shell.model().welcomeReplayToken(), 1);
    }
};

QTEST_MAIN(AppDelegateTest)
#include "AppDelegateTest.moc"
