#include "MainCommands.h"

#include "ShellFixture.h"

#include <QSignalSpy>

class MainCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameWhatWatchingWouldBecome()
    {
        ShellFixture shell;
        MainCommands commands(shell.model(), shell.delegate, MainWindowLayout(shell.defaults));
        QSignalSpy changed(&commands, &MainCommands::watchingTitleChanged);
        QCOMPARE(commands.watchingTitle(), "Pause Watching");
        commands.toggleWatching();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(commands.watchingTitle(), "Resume Watching");
    }
};

QTEST_MAIN(MainCommandsTest)
#include "MainCommandsTest.moc"
