#pragma once

#include "FileDescriptor.h"

#include <QString>

#include <atomic>
#include <chrono>
#include <memory>

/// A process of the worker program and this end of its socket: the program itself, or a worker that it
/// raised. The process ends with this object.
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

    /// Starts `program` on the calling thread; null when that fails.
    static std::shared_ptr<ImageWorkerChild> start(const QString &program);
    /// A worker, raised by this program; null when it gives none within `limit`.
    std::shared_ptr<ImageWorkerChild> raiseWorker(std::chrono::milliseconds limit) const;

    bool isRunning() const;
    int socket() const { return m_socket.number(); }
    /// Waits until the process has said something or is gone; false when it did neither within `limit`.
    bool awaitWord(std::chrono::milliseconds limit) const;

    /// Kills the process and returns at once; from any thread.
    void kill();
    /// Whether kill() has been called, so that its silence says nothing of the program.
    bool isKilled() const { return m_isKilled; }

private:
    FileDescriptor m_process; ///< a descriptor of the process, which cannot come to mean another
    FileDescriptor m_socket;
    std::atomic<bool> m_isKilled = false;
};
