#include "FolderMonitor.h"

#include "WriteFile.h"

#include <QDir>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <functional>
#include <linux/magic.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/vfs.h>

namespace {

int openDescriptors()
{
    return static_cast<int>(QDir("/proc/self/fd").entryList(QDir::Files | QDir::System).size());
}

std::function<void()> whenThreadHasStarted; ///< called once
std::optional<int> fileSystemKind;          ///< of every folder; none: as it is

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the linker's names
extern "C" {
int __real_pthread_setname_np(pthread_t thread, const char *name);
int __wrap_pthread_setname_np(pthread_t thread, const char *name);
int __real_statfs(const char *path, struct statfs *fileSystem);
int __wrap_statfs(const char *path, struct statfs *fileSystem);
}

int __wrap_pthread_setname_np(pthread_t thread, const char *name)
{
    if (whenThreadHasStarted) {
        std::exchange(whenThreadHasStarted, {})();
    }
    return __real_pthread_setname_np(thread, name);
}

int __wrap_statfs(const char *path, struct statfs *fileSystem)
{
    const int result = __real_statfs(path, fileSystem);
    fileSystem->f_type = fileSystemKind.value_or(fileSystem->f_type);
    return result;
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

class FolderMonitorTest : public QObject
{
    Q_OBJECT

    std::optional<QTemporaryDir> m_folder;
    std::optional<FolderMonitor> m_monitor;
    std::atomic<int> m_reports = 0;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    bool start(const QString &name, std::function<void()> onChange)
    {
        return m_monitor->start(QUrl::fromLocalFile(path(name)), std::move(onChange));
    }
    bool start(const QString &name)
    {
        return start(name, [this] { ++m_reports; });
    }

private Q_SLOTS:
    void init()
    {
        fileSystemKind.reset();
        m_folder.emplace();
        m_monitor.emplace();
        m_reports = 0;
        QVERIFY(QDir().mkpath(path("watched/sub")));
        writeFile(path("watched/old.heic"), "");
        writeFile(path("outside.heic"), "");
    }

    void shouldReportChangesOfTheFolderItself_data()
    {
        QTest::addColumn<QString>("watched");
        QTest::addColumn<std::function<bool()>>("change");
        const auto row = [](const char *name, const QString &watched, const std::function<bool()> &change) {
            QTest::newRow(name) << watched << change;
        };
        row("file added", "watched", [this] { return writeFile(path("watched/new.heic"), "").isValid(); });
        row("file removed", "watched", [this] { return QFile::remove(path("watched/old.heic")); });
        row("file moved in", "watched",
            [this] { return QFile::rename(path("outside.heic"), path("watched/a")); });
        row("file moved out", "watched",
            [this] { return QFile::rename(path("watched/old.heic"), path("a")); });
        row("attributes", "watched", [this] { return ::chmod(qPrintable(path("watched")), 0711) == 0; });
        row("empty folder deleted", "watched/sub", [this] { return QDir().rmdir(path("watched/sub")); });
    }

    void shouldReportChangesOfTheFolderItself()
    {
        QFETCH(QString, watched);
        QFETCH(std::function<bool()>, change);
        QVERIFY(start(watched));
        QVERIFY(change());
        QTRY_VERIFY(m_reports > 0);
        QTRY_COMPARE(m_monitor->hasLostFolder(), !QFile::exists(path(watched)));
    }

    void shouldReportARenamedFolderAndKeepWatchingIt()
    {
        QVERIFY(start("watched"));
        QVERIFY(QDir().rename(path("watched"), path("elsewhere")));
        QTRY_COMPARE(m_reports, 1);
        QTRY_VERIFY(m_monitor->hasLostFolder());
        writeFile(path("elsewhere/new.heic"), "");
        QTRY_COMPARE(m_reports, 2);
        QVERIFY(start("elsewhere") && !m_monitor->hasLostFolder());
    }

    void shouldNotReportWhatHappensInsideFilesAndSubfolders()
    {
        QSemaphore release;
        QVERIFY(start("watched", [&] {
            ++m_reports;
            release.acquire();
        }));
        writeFile(path("watched/new.heic"), "");
        QTRY_COMPARE(m_reports, 1); // the monitor is held in this report meanwhile
        writeFile(path("watched/old.heic"), "more");
        QCOMPARE(::chmod(qPrintable(path("watched/old.heic")), 0600), 0);
        writeFile(path("watched/sub/inner.heic"), "");
        release.release(2);
        m_monitor->stop(); // what waits in the kernel's queue is delivered first
        QCOMPARE(m_reports, 1);
    }

    void shouldRefuseWhatCannotBeOpenedAndEndTheEarlierWatch()
    {
        QVERIFY(start("watched"));
        QVERIFY(!start("gone"));
        writeFile(path("watched/new.heic"), "");
        QVERIFY(!start("outside.heic"));
        QCOMPARE(m_reports, 0);
    }

    void shouldLeaveNoDescriptorBehind()
    {
        const int before = openDescriptors();
        for (int round = 0; round < 50; ++round) {
            QVERIFY(start("watched"));
        }
        QVERIFY(openDescriptors() <= before + 2); // the queue and the end signal of one watch
        m_monitor->stop();
        m_monitor->stop();
        QVERIFY(start("watched"));
        m_monitor.reset();
        QCOMPARE(openDescriptors(), before);
    }

    void shouldBearBeingStoppedFromWithinItsFirstReport()
    {
        const int before = openDescriptors();
        whenThreadHasStarted = [this] {
            writeFile(path("watched/new.heic"), "");
            for (int turn = 0; turn < 10'000; ++turn) {
                QThread::yieldCurrentThread(); // the report comes before start has returned
            }
        };
        QVERIFY(start("watched", [this] {
            ++m_reports;
            writeFile(path("watched/more.heic"), ""); // waits in the queue when the watch ends
            m_monitor->stop();
        }));
        QTRY_COMPARE(openDescriptors(), before); // the watch's thread is gone, and all that it had
        QCOMPARE(m_reports, 1);
    }

    void shouldSayWhichFoldersMayMissChanges()
    {
        for (const int kind : {EXT4_SUPER_MAGIC, NFS_SUPER_MAGIC, FUSE_SUPER_MAGIC}) {
            fileSystemKind = kind;
            QVERIFY(start("watched"));
            QCOMPARE(m_monitor->mayMissChanges(), kind != EXT4_SUPER_MAGIC);
        }
        m_monitor->stop();
        QVERIFY(!m_monitor->mayMissChanges());
    }

    void shouldCountAFolderAsWatchedWhenNoWatchIsLeft()
    {
        rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
        const rlimit none{.rlim_cur = 0, .rlim_max = before.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
        const bool isMissingWatched = start("gone");
        const bool isFileWatched = start("outside.heic");
        const bool isWatched = start("watched") && m_monitor->mayMissChanges();
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &before), 0);
        QVERIFY(isWatched && !isMissingWatched && !isFileWatched);
        QVERIFY(start("watched") && !m_monitor->mayMissChanges());
    }
};

QTEST_GUILESS_MAIN(FolderMonitorTest)
#include "FolderMonitorTest.moc"
