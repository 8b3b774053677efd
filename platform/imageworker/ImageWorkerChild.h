#pragma once

#include "FileDescriptor.h"

#include <QString>

#include <chrono>
#include <memory>

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
    static std::unique_ptr<ImageWorkerChild> startForkServer(const QString &program);
    /// Asks this fork server for a worker and returns this end of the worker's socket at once; not open when
    /// the fork server has exited.
    FileDescriptor requestWorker() const;
    /// Receives the first message of the worker behind `socket`; null when it has exited or is not locked
    /// down.
    static std::unique_ptr<ImageWorkerChild> receiveWorker(FileDescriptor socket);

    bool isRunning() const;
    const FileDescriptor &socket() const { return m_socket; }
    /// Waits for a message or the other end's exit; false when neither comes within `limit`.
    static bool awaitMessage(const FileDescriptor &socket, std::chrono::milliseconds limit);

private:
    FileDescriptor m_process; ///< a pidfd: its process identifier cannot be reused
    FileDescriptor m_socket;
};
