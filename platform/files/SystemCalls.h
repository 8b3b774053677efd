#pragma once

#include <QByteArray>

#include <system_error>

/// Steps of one or a few system calls, for what is built on files.
namespace SystemCalls {

/// The error that the last system call left.
std::error_code lastError();

/// Renames, and fails with `std::errc::file_exists` when the name is taken. Fails on file systems that can
/// neither rename without replacing nor link.
std::error_code renameWithoutReplacing(const QByteArray &from, const QByteArray &to);

/// Copies the whole of one open file to the start of another.
std::error_code copyContents(int from, int to);

/// Returns once the disk has this file or folder.
std::error_code flush(const QByteArray &path);

} // namespace SystemCalls
