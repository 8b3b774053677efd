#pragma once

#include <QString>

#include <system_error>

/// What the engine does with files and folders besides reading photos. Nothing here ever replaces a file.
namespace FileOperations {

/// The path of `name` in `folder`, whatever the name: QDir takes one that begins with a colon for a resource.
QString pathIn(const QString &folder, const QString &name);

/// Anything bears this name, a broken link too.
bool exists(const QString &path);

/// Creates a folder and those above it; one that is there already is no error.
std::error_code createFolder(const QString &path);

/// Gives the file at `from` the name `to`, also across file systems. `std::errc::file_exists` when the name
/// is taken. After any error the file is where it was.
std::error_code move(const QString &from, const QString &to);

/// Renames, and fails with `std::errc::file_exists` when the name is taken, on any file system.
std::error_code renameWithoutReplacing(const QByteArray &from, const QByteArray &to);

/// Copies the whole of one open file to the start of another.
std::error_code copyContents(int from, int to);

/// The error that the last system call left.
std::error_code lastError();

} // namespace FileOperations
