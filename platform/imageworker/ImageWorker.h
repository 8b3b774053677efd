#pragma once

#include "FileDescriptor.h"

#include <QByteArray>

#include <tl/expected.hpp>

enum class ImageFormat { Png, Jpeg };

/// In pixels, upright.
struct ImageSize
{
    int width = 0;
    int height = 0;
};

enum class ImageWorkerFault {
    Unreadable,    ///< no picture can be had from the photo, for whatever reason
    CannotWrite,   ///< the output file took no more
    NotLockedDown, ///< no worker could be started and locked down; none was given the photo
};

/// One photo in a process of its own. Calls block; a worker that hangs is ended in its time.
class ImageWorker
{
public:
    virtual ~ImageWorker() = default;

    /// Reads the photo's structure. `source` is a regular file, open for reading.
    virtual tl::expected<ImageSize, ImageWorkerFault> open(const FileDescriptor &source) = 0;
    /// Decodes and writes the upright photo in sRGB. `jpegQuality` is a fraction of 1.
    virtual tl::expected<void, ImageWorkerFault> write(const FileDescriptor &output, ImageFormat format,
                                                       double jpegQuality) = 0;
    /// A small upright picture, as PNG.
    virtual tl::expected<QByteArray, ImageWorkerFault> thumbnail(int maximumSide) = 0;
};
