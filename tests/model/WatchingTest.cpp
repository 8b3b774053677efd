#include "DefaultsStore.h"
#include "ModelFixture.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace std::chrono_literals;

class WatchingTest : public QObject
{
    Q_OBJECT

private:
    AppModel &model() { return m_fixture->model(); }
    /// The sources that the engine was given, in order.
    QStringList converted() const
    {
        QStringList names;
        for (const auto &conversion : m_fixture->engine->running) {
            names << conversion.source.fileName();
        }
        return names;
    }

    std::unique_ptr<ModelFixture> m_fixture;

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<ModelFixture>(); }

    void shouldLeaveAloneWhatWasThereBefore()
    {
        m_fixture->write(QStringLiteral("old.heic"));
        m_fixture->launch();
        m_fixture->write(QStringLiteral("new 10.heic"));
        m_fixture->write(QStringLiteral("new 9.heic"));
        m_fixture->write(QStringLiteral(".hidden.heic"));
        m_fixture->settle();
        QCOMPARE(converted(), QStringList({QStringLiteral("new 9.heic"), QStringLiteral("new 10.heic")}));
    }

    void shouldScanOnceAfterABurstOfReportsAndAgainToSettle()
    {
        m_fixture->launch();
        m_fixture->write(QStringLiteral("a.heic"));
        for (int reports = 0; reports < 5; ++reports) {
            m_fixture->monitor->report();
            ModelFixture::turn();
            m_fixture->jobs->advance(349ms);
            QCOMPARE(m_fixture->jobs->waitingJobs(), 1);
        }
        m_fixture->jobs->advance(1ms); // the scan that finds it
        m_fixture->jobs->advance(849ms);
        ModelFixture::turn();
        QVERIFY(converted().isEmpty());
        m_fixture->jobs->advance(1ms);
        ModelFixture::turn();
        QCOMPARE(converted(), QStringList{QStringLiteral("a.heic")});
    }

    void shouldWaitUntilAFileHasStoppedChanging()
    {
        m_fixture->launch();
        m_fixture->write(QStringLiteral("a.heic"), 10);
        m_fixture->monitor->report();
        ModelFixture::turn();
        m_fixture->jobs->advance(350ms);
        for (int bytes = 20; bytes < 50; bytes += 10) {
            m_fixture->write(QStringLiteral("a.heic"), bytes);
            m_fixture->jobs->advance(850ms);
            ModelFixture::turn();
            QVERIFY(converted().isEmpty());
        }
        m_fixture->jobs->advance(850ms);
        ModelFixture::turn();
        QCOMPARE(converted().size(), 1);
    }

    void shouldLookNowAndThenWhereTheFolderChangesInSilence()
    {
        m_fixture->monitor->missesChanges = true;
        m_fixture->launch();
        m_fixture->write(QStringLiteral("a.heic"));
        m_fixture->jobs->advance(10s); // the scan that finds it
        m_fixture->jobs->advance(850ms);
        ModelFixture::turn();
        QCOMPARE(converted(), QStringList{QStringLiteral("a.heic")});

        model().setIsWatching(false);
        QCOMPARE(m_fixture->jobs->waitingJobs(), 0);
        model().setIsWatching(true);
        m_fixture->jobs->advance(100ms);
        m_fixture->write(QStringLiteral("b.heic"));
        m_fixture->jobs->advance(9'900ms);
        m_fixture->jobs->advance(850ms);
        ModelFixture::turn();
        QCOMPARE(converted().size(), 2);

        m_fixture->monitor->missesChanges = false; // the next folder is one of this machine
        model().retryMonitoring();
        m_fixture->jobs->advance(100ms);
        QCOMPARE(m_fixture->jobs->waitingJobs(), 0);
    }

    void shouldConvertAgainOnlyWhatChanged()
    {
        m_fixture->launch();
        m_fixture->write(QStringLiteral("a.heic"));
        m_fixture->settle();
        m_fixture->settle(); // under way: not taken twice
        QCOMPARE(converted().size(), 1);
        m_fixture->engine->fail(ConversionError::unreadableImage);
        m_fixture->settle();
        QVERIFY(converted().isEmpty());
        m_fixture->write(QStringLiteral("a.heic"), 99);
        m_fixture->settle();
        QCOMPARE(converted().size(), 1);
        m_fixture->engine->succeed(QStringLiteral("a.png"));
        QVERIFY(QFile::rename(m_fixture->url(QStringLiteral("a.heic")).toLocalFile(),
                              m_fixture->url(QStringLiteral("b.heic")).toLocalFile()));
        m_fixture->settle();
        QCOMPARE(converted(), QStringList{QStringLiteral("b.heic")});
    }

    void shouldConvertAfterResumingWhatArrivedDuringAPause()
    {
        m_fixture->launch();
        model().setIsWatching(false);
        m_fixture->write(QStringLiteral("a.heic"));
        m_fixture->settle();
        QVERIFY(converted().isEmpty());
        QCOMPARE(model().monitorDetail(), QStringLiteral("New arrivals won’t convert until you resume."));
        QCOMPARE(model().monitorSymbol(), QStringLiteral("pause.circle.fill"));
        model().setIsWatching(true);
        m_fixture->jobs->advance(100ms);
        m_fixture->jobs->advance(850ms);
        ModelFixture::turn();
        QCOMPARE(converted(), QStringList{QStringLiteral("a.heic")});
    }

    void shouldForgetACandidateWhenPaused()
    {
        m_fixture->launch();
        m_fixture->write(QStringLiteral("a.heic"));
        m_fixture->monitor->report();
        ModelFixture::turn();
        m_fixture->jobs->advance(350ms); // now a candidate
        model().setIsWatching(false);
        model().setIsWatching(true);
        m_fixture->jobs->advance(100ms);
        ModelFixture::turn();
        QVERIFY(converted().isEmpty()); // seen once again, not twice
        m_fixture->jobs->advance(850ms);
        ModelFixture::turn();
        QCOMPARE(converted().size(), 1);
    }

    void shouldScanAfterLaunchWhenWatchingWasStored()
    {
        m_fixture->defaults->store(QStringLiteral("isWatching"), true);
        m_fixture->write(QStringLiteral("old.heic"));
        m_fixture->launch();
        QCOMPARE(m_fixture->jobs->waitingJobs(), 1);
        m_fixture->jobs->advance(5s);
        ModelFixture::turn();
        QVERIFY(converted().isEmpty());
    }

    void shouldSayWhenTheFolderCannotBeWatchedAndRecover()
    {
        const QString folder = m_fixture->home.filePath(QStringLiteral("Photos"));
        QVERIFY(QDir().rmdir(folder));
        m_fixture->launch();
        QVERIFY(!model().monitorAvailable());
        QCOMPARE(model().lastEventText(), QStringLiteral("Couldn’t watch Photos"));
        QCOMPARE(model().monitorTitle(), QStringLiteral("Folder unavailable"));
        QCOMPARE(model().monitorDetail(), QStringLiteral("Check your watched folder, then retry."));
        QCOMPARE(model().monitorSymbol(), QStringLiteral("exclamationmark.triangle.fill"));

        QVERIFY(QDir().mkdir(folder));
        m_fixture->write(QStringLiteral("a.heic"));
        model().retryMonitoring();
        QVERIFY(model().monitorAvailable());
        m_fixture->jobs->advance(100ms + 850ms);
        ModelFixture::turn();
        QCOMPARE(model().monitorDetail(), QStringLiteral("Watching Photos for new HEIC photos."));
        QCOMPARE(model().monitorSymbol(), QStringLiteral("checkmark.circle.fill"));
        QCOMPARE(converted(), QStringList{QStringLiteral("a.heic")});
    }

    void shouldMoveToAChosenFolderAndKnowWhatIsThere()
    {
        m_fixture->launch();
        model().chooseWatchFolder();
        QCOMPARE(model().watchFolder().fileName(), QStringLiteral("Photos"));
        QCOMPARE(m_fixture->panel->requests.first().title,
                 QStringLiteral("Choose the folder where AirDrop saves photos"));
        QCOMPARE(m_fixture->panel->requests.first().prompt, QStringLiteral("Watch this folder"));
        QCOMPARE(m_fixture->panel->requests.first().folder, model().watchFolder());

        m_fixture->panel->answer = {QUrl(QStringLiteral("sftp://elsewhere/Photos 2"))};
        model().chooseWatchFolder();
        QCOMPARE(model().watchFolder().fileName(), QStringLiteral("Photos"));

        const QString other = m_fixture->home.filePath(QStringLiteral("Other"));
        QVERIFY(QDir().mkdir(other) && QFile(other + QStringLiteral("/old.heic")).open(QIODevice::WriteOnly));
        m_fixture->panel->answer = {QUrl::fromLocalFile(other + QLatin1Char('/'))};
        model().chooseWatchFolder();
        QCOMPARE(model().lastEventText(), QStringLiteral("Watching Other"));
        m_fixture->settle();
        QVERIFY(converted().isEmpty());
        QCOMPARE(m_fixture->launch().watchFolder(), QUrl::fromLocalFile(other));
    }

    void shouldConvertEverythingOnRequest()
    {
        m_fixture->write(QStringLiteral("2.heic"));
        m_fixture->write(QStringLiteral("1.heic"));
        m_fixture->launch();
        model().setIsWatching(false);
        model().convertExistingFiles();
        ModelFixture::turn();
        QCOMPARE(converted(), QStringList({QStringLiteral("1.heic"), QStringLiteral("2.heic")}));
        for (const char *name : {"1.heic", "2.heic"}) {
            QVERIFY(QFile::remove(m_fixture->url(QString::fromLatin1(name)).toLocalFile()));
        }
        model().convertExistingFiles();
        QCOMPARE(model().lastEventText(), QStringLiteral("No HEIC photos found in Photos"));
    }
};

QTEST_MAIN(WatchingTest)
#include "WatchingTest.moc"
