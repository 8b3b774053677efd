#pragma once

#include <QUrl>

#include <chrono>
#include <cstdint>
#include <optional>

/// The identity of a file's current content as the file system reports it.
struct FileSignature
{
    std::int64_t size = 0; ///< bytes
    /// Time of the last change of the content, at the file system's full resolution.
    std::chrono::sys_time<std::chrono::nanoseconds> modifiedAt;

    bool operator==(const FileSignature &) const = default;

    /// One look at the file system. None for what cannot be read and for what has no data of its own (a
    /// folder, a pipe).
    static std::optional<FileSignature> of(const QUrl &file);
};
