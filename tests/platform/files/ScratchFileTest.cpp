#include "ScratchFile.h"

#include "FileOperations.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray withoutNameless;              ///< a folder on a file system that has no nameless files
std::function<void()> whenPartHasOpened; ///< called once

/// A folder on another file system than the temporary files, or none.
QString otherFileSystem(const QString &here)
{
    struct stat first = {};
    struct stat second = {};
    const QString candidate = QStringLiteral("/dev/shm");
    const bool differs = ::stat(qPrintable(here), &first) == 0 &&
                         ::stat(qPrintable(candidate), &second) == 0 && first.st_dev != second.st_dev &&
                         ::access(qPrintable(candidate), W_OK) == 0;
    return differs ? candidate : QString();
}

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

ScratchFile scratch(const QString &folder, const QByteArray &bytes)
{
    auto file = ScratchFile::create(folder);
    if (!file || ::write(file->descriptor().number(), bytes.data(), static_cast<std::size_t>(bytes.size())) !=
                     bytes.size()) {
        qFatal("no scratch file in %s", qPrintable(folder));
    }
    return std::move(*file);
}

QStringList everything(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming,cert-dcl50-cpp): the linker's names
extern "C" {
int __real_open(const char *path, int flags, ...);
int __wrap_open(const char *path, int flags, ...);
}

int __wrap_open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    if ((flags & O_TMPFILE) == O_TMPFILE && withoutNameless == path) {
        errno = EOPNOTSUPP;
        return -1;
    }
    const int descriptor = __real_open(path, flags, mode);
    if (whenPartHasOpened && QByteArray(path).endsWith("part")) {
        std::exchange(whenPartHasOpened, {})();
    }
    return descriptor;
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming,cert-dcl50-cpp)

class ScratchFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        withoutNameless.clear();
        whenPartHasOpened = {};
    }

    void shouldAppearOnlyWhenPlacedAndNeverReplace()
    {
        const QTemporaryDir folder;
        const auto file = scratch(folder.path(), "picture");
        QVERIFY(everything(folder.path()).isEmpty());
        put(folder.filePath(QStringLiteral("a.png")), "mine");
        QVERIFY(file.placeAs(folder.filePath(QStringLiteral("a.png"))) == std::errc::file_exists);
        QVERIFY(!file.placeAs(folder.filePath(QStringLiteral("a 2.png"))));
        QCOMPARE(content(folder.filePath(QStringLiteral("a.png"))), "mine");
        QCOMPARE(content(folder.filePath(QStringLiteral("a 2.png"))), "picture");
        QVERIFY(file.placeAs(folder.filePath(QStringLiteral("gone/a.png"))) ==
                std::errc::no_such_file_or_directory);
    }

    void shouldBePlacedOnAnotherFileSystem_data()
    {
        QTest::addColumn<bool>("hasNameless");
        QTest::newRow("with nameless files") << true;
        QTest::newRow("without") << false;
    }

    void shouldBePlacedOnAnotherFileSystem()
    {
        QFETCH(bool, hasNameless);
        const QTemporaryDir here;
        const QString elsewhere = otherFileSystem(here.path());
        if (elsewhere.isEmpty()) {
            QSKIP("there is no second file system to write to");
        }
        const QTemporaryDir there(elsewhere + QStringLiteral("/scratch-XXXXXX"));
        withoutNameless = hasNameless ? QByteArray() : QFile::encodeName(there.path());
        const auto file = scratch(here.path(), QByteArray(100'000, 'p'));
        put(there.filePath(QStringLiteral("a.png")), "mine");
        QVERIFY(file.placeAs(there.filePath(QStringLiteral("a.png"))) == std::errc::file_exists);
        QVERIFY(!file.placeAs(there.filePath(QStringLiteral("b.png"))));
        QCOMPARE(content(there.filePath(QStringLiteral("b.png"))), QByteArray(100'000, 'p'));
        QCOMPARE(everything(there.path()).size(), 2);

        const QString photo = here.filePath(QStringLiteral("IMG.HEIC"));
        put(photo, "photo");
        const std::array times{timespec{1'700'000'000, 0}, timespec{1'600'000'000, 0}};
        QCOMPARE(::chmod(qPrintable(photo), 0604), 0);
        QCOMPARE(::utimensat(AT_FDCWD, qPrintable(photo), times.data(), 0), 0);
        const QString moved = there.filePath(QStringLiteral("IMG.HEIC"));
        QVERIFY(!FileOperations::move(photo, moved));
        struct stat status = {};
        QCOMPARE(::stat(qPrintable(moved), &status), 0);
        QCOMPARE(status.st_mode & 07777U, 0604U);
        QCOMPARE(status.st_mtim.tv_sec, 1'600'000'000);
        QCOMPARE(content(moved), "photo");
        QVERIFY(!QFile::exists(photo));
    }

    void shouldLeaveAFileAloneThatAnotherProcessHasJustFinished()
    {
        const QTemporaryDir here;
        const QString elsewhere = otherFileSystem(here.path());
        if (elsewhere.isEmpty()) {
            QSKIP("there is no second file system to write to");
        }
        const QTemporaryDir there(elsewhere + QStringLiteral("/scratch-XXXXXX"));
        withoutNameless = QFile::encodeName(there.path());
        const QString finished = there.filePath(QStringLiteral("finished.png"));
        whenPartHasOpened = [&] {
            const QString part = there.filePath(QStringLiteral(".lumaport-part"));
            put(part, "finished");
            QVERIFY(QFile::rename(part, finished));
        };
        const auto file = scratch(here.path(), "mine");
        QVERIFY(!file.placeAs(there.filePath(QStringLiteral("mine.png"))));
        QCOMPARE(content(finished), "finished");
        QCOMPARE(content(there.filePath(QStringLiteral("mine.png"))), "mine");
        QCOMPARE(everything(there.path()).size(), 2);
    }

    void shouldMoveWithoutReplacing()
    {
        const QTemporaryDir folder;
        const QString from = folder.filePath(QStringLiteral("a"));
        const QString to = folder.filePath(QStringLiteral("b"));
        put(from, "first");
        put(to, "second");
        QVERIFY(FileOperations::move(from, to) == std::errc::file_exists);
        QCOMPARE(content(to), "second");
        QCOMPARE(content(from), "first");
        QVERIFY(QFile::remove(to) && !FileOperations::move(from, to));
        QCOMPARE(content(to), "first");
    }
};

QTEST_GUILESS_MAIN(ScratchFileTest)
#include "ScratchFileTest.moc"
