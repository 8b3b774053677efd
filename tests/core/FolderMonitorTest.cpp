#include "FolderMonitor.h"

#include <QDir>
#include <QFile>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

/// Generous; a report that comes at all comes within a millisecond.
constexpr int patience = 10'000;

void touch(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

int openDescriptors()
{
    return static_cast<int>(
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size());
}

std::function<void()> whenThreadHasStarted; ///< called once

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the linker's names
extern "C" {
int __real_pthread_setname_np(pthread_t thread, const char *name);
int __wrap_pthread_setname_np(pthread_t thread, const char *name);
}

int __wrap_pthread_setname_np(pthread_t thread, const char *name)
{
    if (whenThreadHasStarted) {
        std::exchange(whenThreadHasStarted, {})();
    }
    return __real_pthread_setname_np(thread, name);
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

class FolderMonitorTest : public QObject
{
    Q_OBJECT

private:
    QUrl folder() const { return QUrl::fromLocalFile(m_folder->path() + QStringLiteral("/watched")); }
    QString inFolder(const QString &name) const { return folder().toLocalFile() + QLatin1Char('/') + name; }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(inFolder(QStringLiteral("sub"))));
        touch(inFolder(QStringLiteral("old.heic")));
    }

    void shouldReportChangesOfTheFolderItself_data()
    {
        QTest::addColumn<std::function<bool()>>("change");
        const auto path = [this](const char *name) { return inFolder(QString::fromLatin1(name)); };
        const auto row = [](const char *name, const std::function<bool()> &change) {
            QTest::newRow(name) << change;
        };
        row("file added", [=] { return QFile(path("new.heic")).open(QIODevice::WriteOnly); });
        row("file removed", [=] { return QFile::remove(path("old.heic")); });
        row("file moved in", [=] {
            touch(path("../outside.heic"));
            return QFile::rename(path("../outside.heic"), path("new.heic"));
        });
        row("file moved out", [=] { return QFile::rename(path("old.heic"), path("../outside.heic")); });
        row("attributes", [this] { return ::chmod(qPrintable(folder().toLocalFile()), 0711) == 0; });
        row("folder renamed", [this] {
            return QDir().rename(folder().toLocalFile(), m_folder->path() + QStringLiteral("/other"));
        });
    }

    void shouldReportChangesOfTheFolderItself()
    {
        QFETCH(std::function<bool()>, change);
        FolderMonitor monitor;
        QSemaphore reports;
        QVERIFY(monitor.start(folder(), [&reports] { reports.release(); }));
        QVERIFY(change());
        QVERIFY(reports.tryAcquire(1, patience));
    }

    void shouldReportTheDeletionOfAFolderThatWasEmpty()
    {
        const QString empty = inFolder(QStringLiteral("sub"));
        FolderMonitor monitor;
        QSemaphore reports;
        QVERIFY(monitor.start(QUrl::fromLocalFile(empty), [&reports] { reports.release(); }));
        QVERIFY(QDir().rmdir(empty));
        QVERIFY(reports.tryAcquire(1, patience));
    }

    void shouldNotReportWhatHappensInsideFilesAndSubfolders()
    {
        FolderMonitor monitor;
        QSemaphore entered;
        QSemaphore release;
        std::atomic<int> reports = 0;
        QVERIFY(monitor.start(folder(), [&] {
            ++reports;
            entered.release();
            release.acquire();
        }));
        touch(inFolder(QStringLiteral("new.heic")));
        QVERIFY(entered.tryAcquire(
            1, patience)); // the monitor is held in this report while the quiet things happen

        QFile old(inFolder(QStringLiteral("old.heic")));
        QVERIFY(old.open(QIODevice::Append) && old.write("more") == 4);
        old.close();
        QCOMPARE(::chmod(qPrintable(old.fileName()), 0600), 0);
        touch(inFolder(QStringLiteral("sub/inner.heic")));

        release.release(2);
        monitor.stop(); // what waits in the kernel's queue is delivered first
        QCOMPARE(reports, 1);
    }

    void shouldKeepWatchingARenamedFolder()
    {
        FolderMonitor monitor;
        QSemaphore reports;
        QVERIFY(monitor.start(folder(), [&reports] { reports.release(); }));
        const QString elsewhere = m_folder->path() + QStringLiteral("/elsewhere");
        QVERIFY(QDir().rename(folder().toLocalFile(), elsewhere));
        QVERIFY(reports.tryAcquire(1, patience));
        touch(elsewhere + QStringLiteral("/new.heic"));
        QVERIFY(reports.tryAcquire(1, patience));
    }

    void shouldRefuseWhatCannotBeOpenedAndEndTheEarlierWatch()
    {
        FolderMonitor monitor;
        std::atomic<int> reports = 0;
        QVERIFY(monitor.start(folder(), [&reports] { ++reports; }));
        QVERIFY(
            !monitor.start(QUrl::fromLocalFile(inFolder(QStringLiteral("gone"))), [&reports] { ++reports; }));
        touch(inFolder(QStringLiteral("new.heic")));
        QVERIFY(!monitor.start(QUrl::fromLocalFile(inFolder(QStringLiteral("old.heic"))), [] {}));
        QCOMPARE(reports, 0);
    }

    void shouldLeaveNoDescriptorBehind()
    {
        const int before = openDescriptors();
        {
            FolderMonitor monitor;
            for (int round = 0; round < 50; ++round) {
                QVERIFY(monitor.start(folder(), [] {}));
            }
            QVERIFY(openDescriptors() <= before + 2); // the queue and the end signal of one watch
            monitor.stop();
            monitor.stop();
            QVERIFY(monitor.start(folder(), [] {}));
        }
        QCOMPARE(openDescriptors(), before);
    }

    void shouldBearBeingStoppedFromWithinItsFirstReport()
    {
        const int before = openDescriptors();
        FolderMonitor monitor;
        std::atomic<int> reports = 0;
        whenThreadHasStarted = [&] {
            touch(inFolder(QStringLiteral("new.heic")));
            for (int turn = 0; turn < 10'000; ++turn) {
                QThread::yieldCurrentThread(); // the report comes before start has returned
            }
        };
        QVERIFY(monitor.start(folder(), [&] {
            ++reports;
            touch(inFolder(QStringLiteral("more.heic"))); // waits in the queue when the watch ends
            monitor.stop();
        }));
        QTRY_COMPARE(openDescriptors(), before); // the watch's thread is gone, and all that it had
        QCOMPARE(reports, 1);
    }

    void shouldCountAFolderAsWatchedWhenNoWatchIsLeft()
    {
        rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
        const rlimit none{.rlim_cur = 0, .rlim_max = before.rlim_max};
        FolderMonitor monitor;
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
        const bool isWatched = monitor.start(folder(), [] {});
        const bool isMissingWatched =
            monitor.start(QUrl::fromLocalFile(inFolder(QStringLiteral("gone"))), [] {});
        const bool isFileWatched =
            monitor.start(QUrl::fromLocalFile(inFolder(QStringLiteral("old.heic"))), [] {});
        const bool mayMissChanges = monitor.start(folder(), [] {}) && monitor.mayMissChanges();
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &before), 0);
        QVERIFY(isWatched && mayMissChanges);
        QVERIFY(!isMissingWatched && !isFileWatched);
        QVERIFY(monitor.start(folder(), [] {}) && !monitor.mayMissChanges());
    }
};

QTEST_GUILESS_MAIN(FolderMonitorTest)
#include "FolderMonitorTest.moc"
