#pragma once

#include "FileDescriptor.h"

class QUrl;

/// A file of this machine that is HEIC or HEIF by name; whether it is there, opening it tells.
bool isPhotoFile(const QUrl &url);

/// Opens a photo for reading. None (a descriptor that is not open) for what is missing, closed to the user or
/// no regular file: a pipe named like a photo must not be waited for.
FileDescriptor openPhoto(const QUrl &file);
