#pragma once

#include "ImageWorker.h"
#include "ImageWorkerLimits.h"
#include "ImageWorkerWire.h"

#include <QString>

#include <atomic>
#include <memory>

/// A started worker: the process and this end of its socket. Ending and reaping it is the destructor's work.
class ImageWorkerChild
{
public:
    ImageWorkerChild(FileDescriptor process, FileDescriptor socket)
        : m_process(std::move(process))
        , m_socket(std::move(socket))
    {}
    ~ImageWorkerChild() { end(); }
    ImageWorkerChild(const ImageWorkerChild &) = delete;
    ImageWorkerChild &operator=(const ImageWorkerChild &) = delete;

    /// Starts `program` on the calling thread; null when that fails.
    static std::shared_ptr<ImageWorkerChild> start(const QString &program);

    bool isRunning() const;
    int socket() const { return m_socket.number(); }

    /// Kills the process and returns at once; from any thread.
    void kill();
    /// Whether kill() has been called, so that its silence says nothing of the program.
    bool isKilled() const { return m_isKilled; }
    /// Kills the process and waits until it is gone.
    void end();

private:
    FileDescriptor m_process; ///< a descriptor of the process, which cannot come to mean another
    FileDescriptor m_socket;
    std::atomic<bool> m_isKilled = false;
};

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
    /// Asks and waits; a child that answers nonsense, nothing or too late is ended, and the photo Unreadable.
    tl::expected<Reply, ImageWorkerFault> ask(const imageworkerwire::Request &request,
                                              const FileDescriptor &file, std::chrono::milliseconds limit);
    std::chrono::milliseconds writeLimit() const;

    /// Null when it could not be started or has been ended; shared with who may kill it.
    std::shared_ptr<ImageWorkerChild> m_child;
    ImageWorkerLimits m_limits;
    ImageSize m_size;
};
