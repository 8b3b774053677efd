#include "ScratchFile.h"

#include "FileOperations.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

QByteArray lacking;                      ///< a folder whose file system lacks what newer ones have
std::function<void()> whenPartHasOpened; ///< called once
std::optional<struct statvfs> space;     ///< of every file system

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    ::stat(qPrintable(path), &status);
    return status;
}

ScratchFile scratch(const QString &folder, const QByteArray &bytes)
{
    auto file = ScratchFile::create(folder);
    if (!file || ::write(file->descriptor().number(), bytes.data(), static_cast<std::size_t>(bytes.size())) !=
                     bytes.size()) {
        qFatal("no scratch file in %s", qPrintable(folder));
    }
    return std::move(*file);
}

qsizetype fileCount(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size();
}

/// As on a full disk: no file may grow beyond `bytes`.
void limitFiles(rlim_t bytes)
{
    const rlimit limit{.rlim_cur = bytes, .rlim_max = RLIM_INFINITY};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming,cert-dcl50-cpp): the linker's names
extern "C" {
int __real_open(const char *path, int flags, mode_t mode);
int __real_fstatvfs(int file, struct statvfs *status);
int __real_renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags);

int __wrap_open(const char *path, int flags, mode_t mode)
{
    if ((flags & O_TMPFILE) == O_TMPFILE && lacking == path) {
        errno = EOPNOTSUPP;
        return -1;
    }
    const int descriptor = __real_open(path, flags, mode);
    if (whenPartHasOpened && QByteArray(path).endsWith("part")) {
        std::exchange(whenPartHasOpened, {})();
    }
    return descriptor;
}

int __wrap_fstatvfs(int file, struct statvfs *status)
{
    const int result = __real_fstatvfs(file, status);
    *status = space.value_or(*status);
    return result;
}

int __wrap_renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags)
{
    if (!lacking.isEmpty()) {
        errno = EINVAL;
        return -1;
    }
    return __real_renameat2(fromFolder, from, toFolder, to, flags);
}
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming,cert-dcl50-cpp)

class ScratchFileTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_here;
    std::unique_ptr<QTemporaryDir> m_there;
    QString here(const QString &name = {}) const { return m_here->filePath(name); }
    QString there(const QString &name = {}) const { return m_there->filePath(name); }

    /// Makes two folders, the second on the file system of `root`.
    void makeFolders(const QString &root, bool isLacking)
    {
        m_here = std::make_unique<QTemporaryDir>();
        m_there = std::make_unique<QTemporaryDir>(root + "/scratch-XXXXXX");
        lacking = isLacking ? QFile::encodeName(there()) : QByteArray();
    }

private Q_SLOTS:
    void initTestCase()
    {
        ::umask(022);
        ::signal(SIGXFSZ, SIG_IGN); // a write beyond the limit fails instead
    }

    void cleanup()
    {
        limitFiles(RLIM_INFINITY);
        lacking.clear();
        space.reset();
        ::qunsetenv("TMPDIR");
    }

    void shouldNeverReplaceAndBeWholeOrNotThere_data()
    {
        QTest::addColumn<QString>("root");
        QTest::addColumn<bool>("isLacking");
        const QString other = "/dev/shm";
        QTest::newRow("same file system") << QDir::tempPath() << false;
        QTest::newRow("one that lacks much") << QDir::tempPath() << true;
        if (::access(qPrintable(other), W_OK) == 0 &&
            statusOf(other).st_dev != statusOf(QDir::tempPath()).st_dev) {
            QTest::newRow("another file system") << other << false;
            QTest::newRow("another one that lacks much") << other << true;
        }
    }

    void shouldNeverReplaceAndBeWholeOrNotThere()
    {
        QFETCH(QString, root);
        QFETCH(bool, isLacking);
        makeFolders(root, isLacking);
        const QByteArray picture(100'000, 'p');
        const auto file = scratch(here(), picture);
        QCOMPARE(fileCount(here()), 0);
        put(there("taken"), "mine");
        QVERIFY(file.placeAs(there("taken")) == std::errc::file_exists);
        QVERIFY(file.placeAs(there("gone/a.png")) == std::errc::no_such_file_or_directory);
        QCOMPARE(fileCount(there()), 1);
        QVERIFY(!file.placeAs(there("a.png")));
        QCOMPARE(content(there("a.png")), picture);
        QCOMPARE(statusOf(there("a.png")).st_mode & 07777U, 0644U);

        const std::array times{timespec{1'700'000'000, 0}, timespec{1'600'000'000, 0}};
        put(here("photo"), picture);
        QCOMPARE(::chmod(qPrintable(here("photo")), 0604), 0);
        QCOMPARE(::utimensat(AT_FDCWD, qPrintable(here("photo")), times.data(), 0), 0);
        QVERIFY(FileOperations::move(here("photo"), there("taken")) == std::errc::file_exists);
        QCOMPARE(content(there("taken")), "mine");
        if (root != QDir::tempPath()) {
            limitFiles(50'000);
            QVERIFY(file.placeAs(there("half")) == std::errc::file_too_large);
            QVERIFY(FileOperations::move(here("photo"), there("half")) == std::errc::file_too_large);
            limitFiles(RLIM_INFINITY);
        }
        QCOMPARE(content(here("photo")), picture);
        QCOMPARE(fileCount(there()), 2);
        QVERIFY(!FileOperations::move(here("photo"), there("photo")));
        QCOMPARE(content(there("photo")), picture);
        QCOMPARE(statusOf(there("photo")).st_mode & 07777U, 0604U);
        QCOMPARE(statusOf(there("photo")).st_mtim.tv_sec, 1'600'000'000);
        QVERIFY(!QFile::exists(here("photo")));
    }

    void shouldNotMoveAnOriginalThatChangesMeanwhile()
    {
        makeFolders("/dev/shm", true);
        if (!m_there->isValid() || statusOf(there()).st_dev == statusOf(here()).st_dev) {
            QSKIP("there is no second file system to write to");
        }
        put(here("photo"), "half");
        whenPartHasOpened = [this] { put(here("photo"), "whole photo"); };
        QVERIFY(FileOperations::move(here("photo"), there("photo")) == std::errc::text_file_busy);
        QCOMPARE(content(here("photo")), "whole photo");
        QCOMPARE(fileCount(there()), 0);
    }

    void shouldLeaveTheReserveOfAFileSystem()
    {
        makeFolders("/dev/shm", false);
        struct Case
        {
            fsblkcnt_t total; // in MiB
            fsblkcnt_t left;
            bool isEnough;
        };
        const auto file = scratch(here(), QByteArray(2 << 20, 'p'));
        for (const Case &each : {Case{100'000, 63, false}, Case{100'000, 65, true}, Case{160, 9, false},
                                 Case{160, 11, true}, Case{0, 0, true}}) {
            space = {.f_frsize = 1U << 20U, .f_blocks = each.total, .f_bavail = each.left};
            QCOMPARE(ScratchFile::create(here()).has_value(), each.isEnough);
        }
        if (statusOf(there()).st_dev != statusOf(here()).st_dev) {
            space = {.f_frsize = 1U << 20U, .f_blocks = 160, .f_bavail = 11}; // the copy takes two
            QVERIFY(file.placeAs(there("copy")) == std::errc::no_space_on_device);
            QCOMPARE(fileCount(there()), 0);
        }
    }

    void shouldNotTakeMemoryForADisk()
    {
        makeFolders("/dev/shm", true);
        if (!m_there->isValid() || statusOf(there()).st_dev == statusOf(here()).st_dev) {
            QSKIP("there is no file system in memory");
        }
        ::qputenv("TMPDIR", "/dev/shm");
        struct stat status = {};
        QCOMPARE(::fstat(scratch(there(), "content").descriptor().number(), &status), 0);
        QVERIFY(status.st_dev != statusOf("/dev/shm").st_dev);
    }

    void shouldLeaveAFileAloneThatAnotherProcessHasJustFinished()
    {
        makeFolders("/dev/shm", true);
        if (!m_there->isValid() || statusOf(there()).st_dev == statusOf(here()).st_dev) {
            QSKIP("there is no second file system to write to");
        }
        whenPartHasOpened = [this] {
            put(there(".lumaport-part"), "finished");
            QVERIFY(QFile::rename(there(".lumaport-part"), there("finished.png")));
        };
        QVERIFY(!scratch(here(), "mine").placeAs(there("mine.png")));
        QCOMPARE(content(there("finished.png")), "finished");
        QCOMPARE(content(there("mine.png")), "mine");
        QCOMPARE(fileCount(there()), 2);
    }
};

QTEST_GUILESS_MAIN(ScratchFileTest)
#include "ScratchFileTest.moc"
