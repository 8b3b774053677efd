#pragma once

#include "FileDescriptor.h"

#include <QString>

#include <system_error>
#include <tl/expected.hpp>

/// A file without a name until it is whole, so that a process that ends early leaves no part of it behind.
class ScratchFile
{
public:
    /// A nameless file on the file system of `folder`; where that cannot have one, among the temporary files
    /// on a disk. `std::errc::no_space_on_device` when the file system has no more than its reserve left.
    static tl::expected<ScratchFile, std::error_code> create(const QString &folder);

    /// Open for reading and writing.
    const FileDescriptor &descriptor() const { return m_descriptor; }

    /// Writes the content to the disk and gives it a name, on any file system. Never replaces anything:
    /// `std::errc::file_exists` when the name is taken, and another name may be tried.
    std::error_code placeAs(const QString &path) const;

private:
    explicit ScratchFile(FileDescriptor descriptor);

    FileDescriptor m_descriptor;
};
