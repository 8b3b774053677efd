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
    /// `worker` is locked down, or null when none could be had. It lives no longer than `forkServer`.
    ImageWorkerProcess(std::shared_ptr<ImageWorkerChild> forkServer, std::shared_ptr<ImageWorkerChild> worker,
                       ImageWorkerLimits limits)
        : m_forkServer(std::move(forkServer))
        , m_worker(std::move(worker))
        , m_limits(limits)
    {}

    tl::expected<void, ImageWorkerFault> open(const FileDescriptor &source) override;
    tl::expected<void, ImageWorkerFault> write(const FileDescriptor &output, OutputFormat format,
                                               double jpegQuality) override;
    tl::expected<QImage, ImageWorkerFault> thumbnail(int maximumSide) override;

private:
    using Reply = imageworkerwire::Reply;

    /// Sends the request and waits for the reply. A worker whose reply is malformed, or does not come within
    /// `limit`, is killed, and the photo is Unreadable.
    tl::expected<Reply, ImageWorkerFault> ask(const imageworkerwire::Request &request,
                                              const FileDescriptor &file, std::chrono::milliseconds limit);
    std::chrono::milliseconds writeLimit() const;
    /// Whether `output` begins as its format does and is no larger than the photo can need.
    bool isPlausible(const FileDescriptor &output, OutputFormat format) const;

    std::shared_ptr<ImageWorkerChild> m_forkServer; ///< kept alive for m_worker
    std::shared_ptr<ImageWorkerChild> m_worker;     ///< null when it could not be had or has been killed
    ImageWorkerLimits m_limits;
    std::int64_t m_sourceBytes = 0;
    QSize m_size; ///< of the upright picture
};
