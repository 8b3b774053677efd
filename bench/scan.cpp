// scan [ENTRIES PHOTOS]: how long one look at a crowded folder takes, as the application's scan does it.
// Makes the folder, prints the median of 15 looks in milliseconds, and removes it. Default: 100,000 entries,
// 1,000 of them photos.

#include "FileSignature.h"
#include "FolderListing.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

void fill(const QTemporaryDir &folder, int entries, int photos)
{
    for (int index = 0; index < entries; ++index) {
        const bool isPhoto = photos > 0 && index % (entries / photos) == 0;
        QFile file(folder.filePath(QStringLiteral("IMG_%1.%2")
                                       .arg(index)
                                       .arg(isPhoto ? QStringLiteral("HEIC") : QStringLiteral("jpg"))));
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("cannot fill %s", qPrintable(folder.path()));
        }
    }
}

double lookInMilliseconds(const QUrl &folder, int expected)
{
    const auto start = std::chrono::steady_clock::now();
    int found = 0;
    const QList<QUrl> photos = FolderListing::photos(folder);
    for (const QUrl &photo : photos) {
        found += FileSignature::of(photo) ? 1 : 0;
    }
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    if (found != expected) {
        qFatal("found %d photos, not %d", found, expected);
    }
    return took.count();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int entries = arguments.size() > 2 ? arguments[1].toInt() : 100'000;
    const int photos = arguments.size() > 2 ? arguments[2].toInt() : 1'000;

    const QTemporaryDir folder;
    fill(folder, entries, photos);
    std::vector<double> looks(15);
    for (double &look : looks) {
        look = lookInMilliseconds(QUrl::fromLocalFile(folder.path()), photos);
    }
    std::sort(looks.begin(), looks.end());
    QTextStream(stdout) << looks[looks.size() / 2] << " ms for " << entries << " entries, " << photos
                        << " photos\n";
    return 0;
}
