#include "FileSignature.h"

#include "WriteFile.h"

#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <fcntl.h>
#include <sys/stat.h>

class FileSignatureTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    /// The signature of a file with this content that was changed so many nanoseconds after a moment.
    std::optional<FileSignature> signatureOf(const QByteArray &content, long nanoseconds) const
    {
        const QUrl file = writeFile(m_folder.filePath("größe.heic"), content);
        const std::array times{timespec{}, timespec{1'700'000'000, nanoseconds}};
        ::utimensat(AT_FDCWD, QFile::encodeName(file.toLocalFile()).constData(), times.data(), 0);
        return FileSignature::of(file);
    }

private Q_SLOTS:
    void shouldTellOneContentFromAnother()
    {
        const auto first = signatureOf("abc", 123'456'789);
        QVERIFY(first);
        QCOMPARE(first->size, 3);
        QCOMPARE(first->modifiedAt.time_since_epoch().count(), 1'700'000'000'123'456'789);
        QVERIFY(signatureOf("abc", 123'456'789) == first);
        QVERIFY(signatureOf("abc", 123'456'790) != first);
        QVERIFY(signatureOf("abcd", 123'456'789) != first);
    }

    void shouldBeNoneForWhatHasNoData()
    {
        const QString pipe = m_folder.filePath("pipe.heic");
        QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
        for (const QString &path : {m_folder.filePath("gone.heic"), m_folder.path(), pipe}) {
            QVERIFY2(!FileSignature::of(QUrl::fromLocalFile(path)), qPrintable(path));
        }
    }
};

QTEST_GUILESS_MAIN(FileSignatureTest)
#include "FileSignatureTest.moc"
