#pragma once

#include "FileDescriptor.h"
#include "WorkerCount.h"

#include <QBuffer>
#include <QImage>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

/// A file in memory with @p content, as a source for a worker; not open when it could not be made.
inline FileDescriptor memoryHolding(const QByteArray &content)
{
    FileDescriptor file(::memfd_create("source", MFD_CLOEXEC));
    return ::pwrite(file.number(), content.constData(), static_cast<std::size_t>(content.size()), 0) ==
                   content.size()
               ? std::move(file)
               : FileDescriptor();
}

/// A PNG of one colour, Qt::darkCyan.
inline QByteArray pngOf(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QBuffer file;
    file.open(QBuffer::WriteOnly);
    return image.save(&file, "PNG") ? file.data() : QByteArray();
}

/// Whether any child of this process is left, running or not yet reaped.
inline bool hasChildren()
{
    siginfo_t status = {};
    return ::waitid(P_ALL, 0, &status, WEXITED | WNOHANG | WNOWAIT) == 0;
}
