#pragma once

#include <QList>
#include <QUrl>

/// What lies directly in a folder.
namespace FolderListing {

/// The photos by name (HEIC or HEIF, not hidden), in the order of a file manager: letter case apart, numbers
/// by value. One pass over the names. Empty when the folder is missing or cannot be read to its end.
QList<QUrl> photos(const QUrl &folder);

} // namespace FolderListing
