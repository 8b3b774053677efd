#pragma once

#include "FileSignature.h"

#include <QList>
#include <QUrl>

#include <optional>

/// What lies directly in a folder.
namespace FolderListing {

/// The files that are HEIC or HEIF by name and not hidden, sorted as in a file manager: numbers by value,
/// case ignored. Names that are not UTF-8 are left out: no path of Qt can carry them. None when the folder is
/// missing or cannot be read to its end.
std::optional<QList<QUrl>> photos(const QUrl &folder);

struct Photo
{
    QUrl url;
    std::optional<FileSignature> signature; ///< none: it could not be read
};
using Contents = QList<Photo>;

/// The photos, each with its signature at this moment.
std::optional<Contents> contents(const QUrl &folder);

} // namespace FolderListing
