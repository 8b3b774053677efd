#include "FolderListing.h"

#include "FileOperations.h"
#include "PhotoFileName.h"

#include <QCollator>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <vector>

namespace {

struct CloseDirectory
{
    void operator()(DIR *directory) const { ::closedir(directory); }
};

std::optional<QStringList> photoNames(const QByteArray &path)
{
    const std::unique_ptr<DIR, CloseDirectory> directory(::opendir(path.constData()));
    if (!directory) {
        return std::nullopt;
    }
    QStringList names;
    for (;;) {
        errno = 0;
        // readdir is safe on a stream that no other thread has.
        const dirent *entry = ::readdir(directory.get()); // NOLINT(concurrency-mt-unsafe)
        if (!entry) {
            // A part must not pass for the whole folder.
            return errno == 0 ? std::optional(names) : std::nullopt;
        }
        const QByteArrayView bytes(&entry->d_name[0]);
        if (bytes.startsWith('.') || bytes.size() < 6 || bytes[bytes.size() - 5] != '.') {
            continue; // not decoded: a folder may have tens of thousands of other names
        }
        const QString name = QFile::decodeName(bytes.toByteArray());
        if (PhotoFileName::isHeic(name) && QFile::encodeName(name) == bytes) {
            names.append(name);
        }
    }
}

void sortAsInFileManager(QStringList &names)
{
    // The collator of the C locale does not sort numbers by value.
    const QLocale locale;
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, QString>> keyed;
    keyed.reserve(static_cast<std::size_t>(names.size()));
    for (const QString &name : names) {
        keyed.emplace_back(collator.sortKey(name), name);
    }
    std::sort(keyed.begin(), keyed.end(), [](const auto &left, const auto &right) {
        const int order = left.first.compare(right.first);
        return order != 0 ? order < 0 : left.second < right.second;
    });
    std::transform(keyed.begin(), keyed.end(), names.begin(), [](const auto &each) { return each.second; });
}

} // namespace

std::optional<QList<QUrl>> FolderListing::photos(const QUrl &folder)
{
    const QString path = folder.toLocalFile();
    auto names = photoNames(QFile::encodeName(path));
    if (!names) {
        return std::nullopt;
    }
    sortAsInFileManager(*names);
    QList<QUrl> urls;
    urls.reserve(names->size());
    for (const QString &name : *names) {
        urls.append(QUrl::fromLocalFile(FileOperations::pathIn(path, name)));
    }
    return urls;
}

std::optional<FolderListing::Contents> FolderListing::contents(const QUrl &folder)
{
    const auto urls = photos(folder);
    if (!urls) {
        return std::nullopt;
    }
    Contents contents;
    contents.reserve(urls->size());
    for (const QUrl &url : *urls) {
        contents.append({url, FileSignature::of(url)});
    }
    return contents;
}
