#include "MainCommands.h"

#include "ShellFixture.h"

#include <QScreen>
#include <QSignalSpy>
#include <QWindow>

class MainCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameWhatWatchingWouldBecome()
    {
        ShellFixture shell;
        MainCommands commands(shell.model(), shell.delegate, MainWindowLayout(shell.defaults));
        QSignalSpy changed(&commands, &MainCommands::watchingTitleChanged);
        QCOMPARE(commands.watchingTitle(), QStringLiteral("Pause Watching"));
        commands.toggleWatching();
        QVERIFY(!shell.model().isWatching());
        QCOMPARE(commands.watchingTitle(), QStringLiteral("Resume Watching"));
        commands.toggleWatching();
        QVERIFY(shell.model().isWatching());
        QCOMPARE(changed.size(), 2);
    }

    void shouldConvertThePhotosOfTheWatchedFolderAlsoWhilePaused()
    {
        ShellFixture shell;
        MainCommands commands(shell.model(), shell.delegate, MainWindowLayout(shell.defaults));
        commands.toggleWatching();
        commands.convertExistingFiles();
        QCOMPARE(shell.model().lastEventText(), QStringLiteral("No HEIC photos found in Photos"));
        shell.write(QStringLiteral("IMG_1.HEIC"));
        commands.convertExistingFiles();
        QCOMPARE(shell.model().items().size(), 1);
    }

    void shouldResizeOnlyAnOpenMainWindow()
    {
        ShellFixture shell;
        MainCommands commands(shell.model(), shell.delegate, MainWindowLayout(shell.defaults));
        QWindow other;
        other.resize(200, 200);
        other.show();
        QWindow main;
        main.setObjectName(QStringLiteral("main"));
        main.resize(300, 300);
        commands.useRecommendedWindowSize();
        QCOMPARE(main.size(), QSize(300, 300));
        main.show();
        commands.useRecommendedWindowSize();
        QCOMPARE(main.frameGeometry(),
                 MainWindowLayout::place(
                     main.screen()->availableGeometry(),
                     MainWindowLayout::recommendedContentSize.grownBy(main.frameMargins()), {}));
        QCOMPARE(other.size(), QSize(200, 200));
    }

    void shouldShowThePanelOnceThereIsAStatusItem()
    {
        ShellFixture shell;
        MainCommands commands(shell.model(), shell.delegate, MainWindowLayout(shell.defaults));
        commands.showQuickPanel();
        shell.configureMenuBar();
        QVERIFY(!shell.panelWindow()->isVisible());
        commands.showQuickPanel();
        QVERIFY(shell.panelWindow()->isVisible());
        commands.showQuickPanel();
        QVERIFY(!shell.panelWindow()->isVisible());
    }
};

QTEST_MAIN(MainCommandsTest)
#include "MainCommandsTest.moc"
