#include "FolderListing.h"

#include "PhotoFileName.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <dirent.h>
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
        for (const char *name : {"IMG_10.HEIC", "img_2.heif", "IMG_2.HeIc", "a.jpg", ".hidden.heic",
                                 "b.heic.part", "heic", ".heic", "c.heics", "über.heic", "zebra.HEIF"}) {
            QFile file(folder.filePath(QString::fromUtf8(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("sub.heic")));
        QFile inside(folder.filePath(QStringLiteral("sub.heic/d.heic")));
        QVERIFY(inside.open(QIODevice::WriteOnly));

        QStringList names;
        for (const QUrl &url : FolderListing::photos(QUrl::fromLocalFile(folder.path()))) {
            QCOMPARE(url.adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash),
                     QUrl::fromLocalFile(folder.path()));
            names << url.fileName();
        }
        QCOMPARE(names, QStringList({QStringLiteral("IMG_2.HeIc"), QStringLiteral("img_2.heif"),
                                     QStringLiteral("IMG_10.HEIC"), QStringLiteral("sub.heic"),
                                     QStringLiteral("über.heic"), QStringLiteral("zebra.HEIF")}));
    }

    void shouldBeEmptyForAFolderThatIsNotThere()
    {
        QVERIFY(FolderListing::photos(QUrl::fromLocalFile(QStringLiteral("/nowhere/at/all"))).isEmpty());
    }

    void shouldBeEmptyForAFolderThatCannotBeReadToItsEnd()
    {
        const QTemporaryDir folder;
        QVERIFY(QFile(folder.filePath(QStringLiteral("a.heic"))).open(QIODevice::WriteOnly));
        entriesBeforeError = 3; // the folder itself, the one above, the photo
        const auto photos = FolderListing::photos(QUrl::fromLocalFile(folder.path()));
        entriesBeforeError.reset();
        QVERIFY(photos.isEmpty());
    }

    void shouldSplitNamesAtTheLastPoint()
    {
        QCOMPARE(PhotoFileName::base(QStringLiteral("a.b.HEIC")), QStringLiteral("a.b"));
        QCOMPARE(PhotoFileName::extension(QStringLiteral("a.b.HEIC")), QStringLiteral("HEIC"));
        QCOMPARE(PhotoFileName::base(QStringLiteral("photo")), QStringLiteral("photo"));
        QCOMPARE(PhotoFileName::extension(QStringLiteral("photo")), QString());
        QVERIFY(PhotoFileName::isHeic(QStringLiteral("photo.Heif")));
        QVERIFY(!PhotoFileName::isHeic(QStringLiteral("photo.heics")));
    }
};

QTEST_GUILESS_MAIN(FolderListingTest)
#include "FolderListingTest.moc"
