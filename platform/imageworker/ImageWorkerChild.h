#pragma once

#include "FileDescriptor.h"
#include "ImageWorkerWire.h"

#include <QString>

#include <chrono>
#include <memory>
#include <optional>
#include <tl/expected.hpp>

/// A process of the worker program and this end of its socket: the fork server, or a worker that it forked.
/// The process is killed with this object.
class ImageWorkerChild
{
public:
    ImageWorkerChild(FileDescriptor process, FileDescriptor socket)
        : m_process(std::move(process))
        , m_socket(std::move(socket))
    {}
    ~ImageWorkerChild();
    ImageWorkerChild(const ImageWorkerChild &) = delete;
    ImageWorkerChild &operator=(const ImageWorkerChild &) = delete;

    /// Starts `program` as a fork server; null when that fails.
    static std::shared_ptr<ImageWorkerChild> startForkServer(const QString &program);
    /// Asks this fork server for a worker and returns this end of the worker's socket at once; not open when
    /// the fork server has exited.
    FileDescriptor requestWorker() const;
    enum class StartFailure { Refused, TimedOut };
    /// Waits for the first messages of the worker behind `socket`, for each at most `limit`. Refused when it
    /// has exited or is not locked down.
    static tl::expected<std::shared_ptr<ImageWorkerChild>, StartFailure>
    receiveWorker(FileDescriptor socket, std::chrono::milliseconds limit);

    bool isRunning() const;
    const FileDescriptor &socket() const { return m_socket; }
    /// Waits for the next reply; none when something else comes, or nothing within `limit`.
    std::optional<imageworkerwire::Reply> receiveReply(std::chrono::milliseconds limit) const;
    void signal(int number) const;
    /// Kills the process and waits until it has exited: its files are closed then.
    void kill() const;

private:
    FileDescriptor m_process; ///< a pidfd: its process identifier cannot be reused
    FileDescriptor m_socket;
};
