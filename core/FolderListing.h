#pragma once

#include <QList>
#include <QUrl>

/// What lies directly in a folder.
namespace FolderListing {

/// The files that are HEIC or HEIF by name and not hidden, sorted as in a file manager: numbers by value,
/// case ignored. Empty when the folder is missing or cannot be read to its end.
QList<QUrl> photos(const QUrl &folder);

} // namespace FolderListing
