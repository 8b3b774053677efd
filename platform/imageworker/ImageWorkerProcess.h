#pragma once

#include "ImageWorker.h"
#include "ImageWorkerChild.h"
#include "ImageWorkerLimits.h"
#include "ImageWorkerWire.h"

#include <memory>

/// The photo's side of the conversation with one child.
class ImageWorkerProcess : public ImageWorker
{
public:
    ImageWorkerProcess(std::shared_ptr<ImageWorkerChild> child, ImageWorkerLimits limits)
        : m_child(std::move(child))
        , m_limits(limits)
    {}

    tl::expected<ImageSize, ImageWorkerFault> open(const FileDescriptor &source) override;
    tl::expected<void, ImageWorkerFault> write(const FileDescriptor &scratch, ImageFormat format,
                                               double jpegQuality) override;
    tl::expected<QByteArray, ImageWorkerFault> thumbnail(int maximumSide) override;

private:
    using Reply = imageworkerwire::Reply;

    /// Waits until the worker has said that it is locked down; only then it may be handed anything.
    tl::expected<void, ImageWorkerFault> awaitLockDown();
    /// Asks and waits. A child whose answer is no record, or does not come within `limit`, is ended, and the
    /// photo is Unreadable.
    tl::expected<Reply, ImageWorkerFault> ask(const imageworkerwire::Request &request,
                                              const FileDescriptor &file, std::chrono::milliseconds limit);
    std::chrono::milliseconds writeLimit() const;

    /// Null when it could not be started or has been ended; shared with who may kill it.
    std::shared_ptr<ImageWorkerChild> m_child;
    ImageWorkerLimits m_limits;
    ImageSize m_size;
};
