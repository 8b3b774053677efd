#pragma once

#include <QString>

#include <system_error>

/// What the engine does with files and folders besides reading photos. Nothing here ever replaces a file.
namespace FileOperations {

/// The path of `name` in `folder`, whatever the name: QDir takes one that begins with a colon for a resource.
QString pathIn(const QString &folder, const QString &name);

/// Whether there is anything at this path; a broken link counts.
bool exists(const QString &path);

/// Creates a folder and those above it; one that is there already is no error.
std::error_code createFolder(const QString &path);

/// Gives the file at `from` the name `to`, also across file systems. `std::errc::file_exists` when the name
/// is taken. After any error the file is still at `from`.
std::error_code move(const QString &from, const QString &to);

} // namespace FileOperations
