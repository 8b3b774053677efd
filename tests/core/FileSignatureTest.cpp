#include "FileSignature.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

void setModified(const QString &path, long seconds, long nanoseconds)
{
    const std::array times{timespec{seconds, nanoseconds}, timespec{seconds, nanoseconds}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times.data(), 0), 0);
}

} // namespace

class FileSignatureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellOneContentFromAnother()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("größe.heic"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write("abc") == 3);
        setModified(path, 1'700'000'000, 123'456'789);
        const QUrl url = QUrl::fromLocalFile(path);

        const auto first = FileSignature::of(url);
        QVERIFY(first);
        QCOMPARE(first->size, 3);
        QCOMPARE(first->modifiedAt.time_since_epoch().count(), 1'700'000'000'123'456'789);
        QCOMPARE(*FileSignature::of(url), *first);

        setModified(path, 1'700'000'000, 123'456'790); // one nanosecond later
        QVERIFY(*FileSignature::of(url) != *first);

        QVERIFY(file.write("d") == 1);
        setModified(path, 1'700'000'000, 123'456'789);
        QVERIFY(*FileSignature::of(url) != *first);
    }

    void shouldBeNoneForWhatHasNoData()
    {
        const QTemporaryDir folder;
        QVERIFY(!FileSignature::of(QUrl::fromLocalFile(folder.filePath(QStringLiteral("gone.heic")))));
        QVERIFY(!FileSignature::of(QUrl::fromLocalFile(folder.path())));
        const QString pipe = folder.filePath(QStringLiteral("pipe.heic"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!FileSignature::of(QUrl::fromLocalFile(pipe)));
    }
};

QTEST_GUILESS_MAIN(FileSignatureTest)
#include "FileSignatureTest.moc"
