#pragma once

#include "FileDescriptor.h"

class QUrl;

/// Opens a photo for reading. None (a descriptor that is not open) for what is missing, closed to the user or
/// no regular file: a pipe named like a photo must not be waited for.
FileDescriptor openPhoto(const QUrl &file);
