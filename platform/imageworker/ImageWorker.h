#pragma once

#include "FileDescriptor.h"
#include "ImageWorkerFault.h"
#include "OutputFormat.h"

#include <QImage>

#include <tl/expected.hpp>

/// One photo in a process of its own. Calls block; a worker that exceeds its time limit is killed.
class ImageWorker
{
public:
    virtual ~ImageWorker() = default;

    /// Reads the photo's structure. `source` is a regular file, open for reading.
    virtual tl::expected<void, ImageWorkerFault> open(const FileDescriptor &source) = 0;
    /// Decodes the photo and writes it upright and in sRGB. `jpegQuality` is a fraction of 1. It is the last
    /// call for this photo: the process has ended when it returns, so that nothing writes to `output` any
    /// more.
    virtual tl::expected<void, ImageWorkerFault> write(const FileDescriptor &output, OutputFormat format,
                                                       double jpegQuality) = 0;
    /// The upright picture with at most `maximumSide` pixels on its longer side.
    virtual tl::expected<QImage, ImageWorkerFault> thumbnail(int maximumSide) = 0;
};
