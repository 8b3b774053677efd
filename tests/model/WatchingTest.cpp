#include "ModelFixture.h"
#include "WriteFile.h"

#include <QDir>
#include <QTest>

using namespace std::chrono_literals;

class WatchingTest : public QObject
{
    Q_OBJECT

    std::optional<ModelFixture> m_fixture;

    AppModel &model() { return m_fixture->model(); }
    bool rename(const QString &from, const QString &to) const
    {
        return QFile::rename(m_fixture->path(from), m_fixture->path(to));
    }
    /// Time goes by, and what lists the folder on a thread of its own comes back.
    void look(std::chrono::milliseconds after)
    {
        const int scans = m_fixture->monitor->scans;
        m_fixture->pass(after);
        QTRY_VERIFY(m_fixture->monitor->scans > scans);
    }
    /// The sources that the engine was given, in order.
    QStringList converted() const
    {
        QStringList names;
        for (const auto &conversion : m_fixture->engine->running) {
            names << conversion.source.fileName();
        }
        return names;
    }

private Q_SLOTS:
    void init()
    {
        m_fixture.emplace();
        m_fixture->write("old.heic");
        m_fixture->launch();
    }

    void shouldLeaveAloneWhatWasThereBefore()
    {
        m_fixture->write("new 10.heic");
        m_fixture->write("new 9.heic");
        m_fixture->write(".hidden.heic");
        m_fixture->settle();
        QCOMPARE(converted(), (QStringList{"new 9.heic", "new 10.heic"}));
    }

    void shouldScanOnceAfterABurstOfReportsAndAgainToSettle()
    {
        m_fixture->write("a.heic");
        for (int reports = 0; reports < 5; ++reports) {
            m_fixture->monitor->report();
            ModelFixture::turn();
            m_fixture->pass(349ms);
            QCOMPARE(m_fixture->jobs->waitingJobs(), 1);
        }
        m_fixture->pass(1ms); // the scan that finds it
        m_fixture->pass(849ms);
        QVERIFY(converted().isEmpty());
        m_fixture->pass(1ms);
        QCOMPARE(converted(), QStringList{"a.heic"});
    }

    void shouldWaitUntilAFileHasStoppedChanging()
    {
        m_fixture->write("a.heic", 10);
        m_fixture->scan();
        for (int size = 20; size < 50; size += 10) {
            m_fixture->write("a.heic", size);
            m_fixture->pass(850ms);
            QVERIFY(converted().isEmpty());
        }
        m_fixture->pass(850ms);
        QCOMPARE(converted().size(), 1);
    }

    void shouldForgetACandidateThatIsGoneOrWasSeenBeforeAPause()
    {
        m_fixture->write("a.heic");
        m_fixture->scan(); // now a candidate
        QVERIFY(rename("a.heic", "a"));
        m_fixture->scan();
        QVERIFY(rename("a", "a.heic")); // its size and date are as they were
        m_fixture->scan();
        QVERIFY(converted().isEmpty()); // seen once again, not twice
        model().setIsWatching(false);
        model().setIsWatching(true);
        m_fixture->pass(100ms);
        QVERIFY(converted().isEmpty());
        m_fixture->pass(850ms);
        QCOMPARE(converted().size(), 1);
    }

    void shouldPollAFolderThatChangesWithoutAReport()
    {
        m_fixture->monitor->missesChanges = true;
        m_fixture->launch();
        m_fixture->write("a.heic");
        look(10s); // finds it
        look(850ms);
        QCOMPARE(converted(), QStringList{"a.heic"});

        model().setIsWatching(false);
        QCOMPARE(m_fixture->jobs->waitingJobs(), 0);
        model().setIsWatching(true);
        look(100ms);
        QVERIFY(rename("", "../gone")); // does not answer once
        look(9'900ms);
        QVERIFY(QDir(m_fixture->home.path()).rename("gone", "Photos"));
        m_fixture->write("b.heic");
        look(10s);
        look(850ms);
        QCOMPARE(converted(), (QStringList{"a.heic", "b.heic"}));

        m_fixture->monitor->missesChanges = false; // the next folder is one of this machine
        model().retryMonitoring();
        m_fixture->pass(100ms);
        QCOMPARE(m_fixture->jobs->waitingJobs(), 0);
    }

    void shouldWatchAgainWhatHasThePathOfALostFolder()
    {
        QDir folder(m_fixture->path(""));
        QVERIFY(folder.removeRecursively());
        m_fixture->monitor->lostFolder = true;
        m_fixture->scan();
        QCOMPARE(model().monitorTitle(), "Auto-convert: On");
        look(10s);
        QVERIFY(m_fixture->monitor->lostFolder);
        QVERIFY(folder.mkpath("."));
        m_fixture->write("other.heic");
        look(10s);
        QVERIFY(!m_fixture->monitor->lostFolder);
        m_fixture->write("a.heic"); // before the new watch has reported anything
        m_fixture->pass(850ms);
        m_fixture->pass(850ms);
        QCOMPARE(converted(), QStringList{"a.heic"});
        QCOMPARE(m_fixture->jobs->waitingJobs(), 0); // it is not looked for any more
    }

    void shouldWaitUntilAStalledWriterHasClosedThePhoto()
    {
        QFile photo(m_fixture->path("a.heic"));
        QVERIFY(photo.open(QFile::WriteOnly));
        photo.write("half");
        QVERIFY(photo.flush());
        m_fixture->settle();
        m_fixture->pass(850ms);
        QVERIFY(converted().isEmpty());
        photo.close();
        m_fixture->pass(850ms);
        QCOMPARE(converted(), QStringList{"a.heic"});
        m_fixture->write("a.heic", 99); // another writer, while it is converted
        m_fixture->engine->fail(ConversionError::unreadableImage);
        m_fixture->pass(350ms);
        m_fixture->pass(850ms);
        QCOMPARE(converted(), QStringList{"a.heic"});
    }

    void shouldConvertAgainOnlyWhatChanged()
    {
        m_fixture->write("a.heic");
        m_fixture->settle();
        m_fixture->settle(); // under way: not taken twice
        QCOMPARE(converted().size(), 1);
        m_fixture->engine->fail(ConversionError::unreadableImage);
        m_fixture->settle();
        QVERIFY(converted().isEmpty());
        m_fixture->write("a.heic", 99);
        m_fixture->settle();
        QCOMPARE(converted().size(), 1);
        m_fixture->engine->succeed("a.png");
        QVERIFY(rename("a.heic", "b.heic"));
        m_fixture->settle();
        QCOMPARE(converted(), QStringList{"b.heic"});
        m_fixture->engine->succeed("b.png");
        QVERIFY(rename("b.heic", "b"));
        m_fixture->scan();
        QVERIFY(rename("b", "b.heic")); // arrives a second time, as it was
        m_fixture->settle();
        QCOMPARE(converted(), QStringList{"b.heic"});
    }

    void shouldConvertAfterResumingWhatArrivedDuringAPause()
    {
        model().setIsWatching(false);
        m_fixture->write("a.heic");
        m_fixture->settle();
        QVERIFY(converted().isEmpty());
        QCOMPARE(model().monitorTitle(), "Auto-convert: Paused");
        QCOMPARE(model().monitorDetail(), "New arrivals won’t convert until you resume.");
        QCOMPARE(model().monitorSymbol(), "pause.circle.fill");
        model().setIsWatching(true);
        m_fixture->pass(100ms);
        m_fixture->pass(850ms);
        QCOMPARE(converted(), QStringList{"a.heic"});
    }

    void shouldScanAfterLaunchWhenWatchingWasStored()
    {
        m_fixture->defaults->store("isWatching", true);
        m_fixture->launch();
        QCOMPARE(m_fixture->jobs->waitingJobs(), 1);
        m_fixture->pass(5s);
        QVERIFY(converted().isEmpty());
    }

    void shouldSayWhenTheFolderCannotBeWatchedAndRecover()
    {
        QDir folder(m_fixture->path(""));
        QVERIFY(folder.removeRecursively());
        m_fixture->launch();
        QVERIFY(!model().monitorAvailable());
        QCOMPARE(model().lastEventText(), "Couldn’t watch Photos");
        QCOMPARE(model().monitorTitle(), "Folder unavailable");
        QCOMPARE(model().monitorDetail(), "Check your watched folder, then retry.");
        QCOMPARE(model().monitorSymbol(), "exclamationmark.triangle.fill");

        QVERIFY(folder.mkpath("."));
        m_fixture->write("a.heic");
        model().retryMonitoring();
        QVERIFY(model().monitorAvailable());
        QCOMPARE(model().monitorDetail(), "Watching Photos for new HEIC photos.");
        QCOMPARE(model().monitorSymbol(), "checkmark.circle.fill");
        m_fixture->pass(100ms + 850ms);
        QCOMPARE(converted(), QStringList{"a.heic"});
    }

    void shouldMoveToAChosenFolderAndKnowWhatIsThere()
    {
        const QUrl photos = model().watchFolder();
        m_fixture->panel->answer = {QUrl("sftp://elsewhere/Photos 2")};
        model().chooseWatchFolder();
        QCOMPARE(model().watchFolder(), photos);
        const OpenPanelRequest request = m_fixture->panel->requests.first();
        QCOMPARE(request.title, "Choose the folder where AirDrop saves photos");
        QCOMPARE(request.prompt, "Watch this folder");
        QCOMPARE(request.folder, photos);

        const QString other = m_fixture->home.filePath("Other");
        QVERIFY(QDir().mkdir(other));
        writeFile(other + "/there.heic", "");
        m_fixture->panel->answer = {QUrl::fromLocalFile(other + '/')};
        model().chooseWatchFolder();
        QCOMPARE(model().lastEventText(), "Watching Other");
        m_fixture->settle();
        QVERIFY(converted().isEmpty());
        QCOMPARE(m_fixture->launch().watchFolder(), QUrl::fromLocalFile(other));
    }

    void shouldConvertEverythingOnRequest()
    {
        m_fixture->write("new.heic");
        model().setIsWatching(false);
        model().convertExistingFiles();
        ModelFixture::turn();
        QCOMPARE(converted(), (QStringList{"new.heic", "old.heic"}));
        QVERIFY(rename("new.heic", "new") && rename("old.heic", "old"));
        model().convertExistingFiles();
        QCOMPARE(model().lastEventText(), "No HEIC photos found in Photos");
    }
};

QTEST_MAIN(WatchingTest)
#include "WatchingTest.moc"
