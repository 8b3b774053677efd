#include "FolderListing.h"

#include "FileDescriptor.h"
#include "WriteFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <optional>

namespace {

std::optional<int> entriesBeforeError; ///< none: the folder is read as it is

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the linker's names
extern "C" {
dirent *__real_readdir(DIR *directory);
dirent *__wrap_readdir(DIR *directory);
}

dirent *__wrap_readdir(DIR *directory)
{
    if (entriesBeforeError && (*entriesBeforeError)-- <= 0) {
        errno = EIO;
        return nullptr;
    }
    return __real_readdir(directory); // NOLINT(concurrency-mt-unsafe)
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

class FolderListingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindPhotosByNameInTheOrderOfAFileManager()
    {
        const QTemporaryDir folder;
        for (const QString name : {"IMG_10.HEIC", "img_2.heif", "IMG_2.HeIc", "a.jpg", ".hidden.heic",
                                   "b.heic.part", "heic", ".heic", "c.heics", "über.heic", "zebra.HEIF"}) {
            writeFile(folder.filePath(name), "");
        }
        const QByteArray latin1 = QFile::encodeName(folder.path()) + "/\xfc"
                                                                     "ber.heic";
        const FileDescriptor other(::open(latin1.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
        QVERIFY(other.isOpen());
        QVERIFY(QDir(folder.path()).mkdir("sub.heic"));
        writeFile(folder.filePath("sub.heic/d.heic"), "");

        QList<QUrl> expected;
        for (const QString name :
             {"IMG_2.HeIc", "img_2.heif", "IMG_10.HEIC", "sub.heic", "über.heic", "zebra.HEIF"}) {
            expected << QUrl::fromLocalFile(folder.filePath(name));
        }
        QCOMPARE(FolderListing::photos(QUrl::fromLocalFile(folder.path())), expected);
    }

    void shouldFailForAFolderThatIsMissingOrCannotBeReadToItsEnd()
    {
        QVERIFY(!FolderListing::photos(QUrl("file:///nowhere/at/all")));
        const QTemporaryDir folder;
        writeFile(folder.filePath("a.heic"), "");
        entriesBeforeError = 3; // the folder itself, the one above, the photo
        const auto photos = FolderListing::photos(QUrl::fromLocalFile(folder.path()));
        entriesBeforeError.reset();
        QVERIFY(!photos);
    }
};

QTEST_GUILESS_MAIN(FolderListingTest)
#include "FolderListingTest.moc"
