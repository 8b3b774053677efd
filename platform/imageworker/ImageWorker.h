#pragma once

#include "FileDescriptor.h"
#include "ImageWorkerFault.h"
#include "OutputFormat.h"

#include <QByteArray>

#include <tl/expected.hpp>

/// One photo in a process of its own. Calls block; a worker that exceeds its time limit is killed.
class ImageWorker
{
public:
    virtual ~ImageWorker() = default;

    /// Reads the photo's structure. `source` is a regular file, open for reading.
    virtual tl::expected<void, ImageWorkerFault> open(const FileDescriptor &source) = 0;
    /// Decodes the photo and writes it upright and in sRGB. `jpegQuality` is a fraction of 1.
    virtual tl::expected<void, ImageWorkerFault> write(const FileDescriptor &output, OutputFormat format,
                                                       double jpegQuality) = 0;
    /// An upright PNG of at most `maximumSide` pixels on its longer side.
    virtual tl::expected<QByteArray, ImageWorkerFault> thumbnail(int maximumSide) = 0;
};
