#include "ScratchFile.h"

#include "FileOperations.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

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

class ScratchFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

    void shouldBePlacedOnAnotherFileSystem()
    {
        const QTemporaryDir here;
        const QString elsewhere = otherFileSystem(here.path());
        if (elsewhere.isEmpty()) {
            QSKIP("there is no second file system to write to");
        }
        const QTemporaryDir there(elsewhere + QStringLiteral("/scratch-XXXXXX"));
        const auto file = scratch(here.path(), QByteArray(100'000, 'p'));
        put(there.filePath(QStringLiteral("a.png")), "mine");
        QVERIFY(file.placeAs(there.filePath(QStringLiteral("a.png"))) == std::errc::file_exists);
        QVERIFY(!file.placeAs(there.filePath(QStringLiteral("b.png"))));
        QCOMPARE(content(there.filePath(QStringLiteral("b.png"))), QByteArray(100'000, 'p'));
        QCOMPARE(everything(there.path()).size(), 2);

        put(here.filePath(QStringLiteral("IMG.HEIC")), "photo");
        const QString moved = there.filePath(QStringLiteral("IMG.HEIC"));
        QVERIFY(!FileOperations::move(here.filePath(QStringLiteral("IMG.HEIC")), moved));
        QCOMPARE(content(moved), "photo");
        QVERIFY(!QFile::exists(here.filePath(QStringLiteral("IMG.HEIC"))));
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
