#pragma once

#include "ImageWorker.h"
#include "ImageWorkerChild.h"
#include "ImageWorkerLimits.h"
#include "ImageWorkerWire.h"

#include <memory>

/// An image worker in a process of its own, and what the application asks of it.
class ImageWorkerProcess : public ImageWorker
{
public:
    /// `worker` is locked down, or null when none could be had.
    ImageWorkerProcess(std::unique_ptr<ImageWorkerChild> worker, ImageWorkerLimits limits)
        : m_worker(std::move(worker))
        , m_limits(limits)
    {}

    tl::expected<void, ImageWorkerFault> open(const FileDescriptor &source) override;
    tl::expected<void, ImageWorkerFault> write(const FileDescriptor &output, OutputFormat format,
                                               double jpegQuality) override;
    tl::expected<QByteArray, ImageWorkerFault> thumbnail(int maximumSide) override;

private:
    using Reply = imageworkerwire::Reply;

    /// Sends the request and waits for the reply. A worker whose reply is malformed, or does not come within
    /// `limit`, is killed, and the photo is Unreadable.
    tl::expected<Reply, ImageWorkerFault> ask(const imageworkerwire::Request &request,
                                              const FileDescriptor &file, std::chrono::milliseconds limit);
    std::chrono::milliseconds writeLimit() const;

    std::unique_ptr<ImageWorkerChild> m_worker; ///< null when it could not be had or has been killed
    ImageWorkerLimits m_limits;
    std::int32_t m_pixels = 0;
};
