#pragma once

#include "FileDescriptor.h"

class QUrl;

/// The URL is of a file of this machine that is HEIC or HEIF by name. The file need not exist.
bool isPhotoFile(const QUrl &url);

/// A file URL that names this machine as its host, without it: so all programs' URLs of a file are equal.
QUrl withoutOwnHost(const QUrl &url);

/// Opens a photo for reading. The descriptor is not open when the file is missing, may not be read or is no
/// regular file; a pipe that is named like a photo is not waited for.
FileDescriptor openPhoto(const QUrl &file);

/// Another process has the photo open for writing. False where the kernel cannot tell: on file systems
/// without leases, and for files of other users.
bool isBeingWritten(const QUrl &file);
