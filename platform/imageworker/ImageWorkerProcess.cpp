#include "ImageWorkerProcess.h"

#include "DescriptorMessage.h"

#include <algorithm>
#include <fcntl.h>
#include <optional>
#include <sys/mman.h>
#include <sys/stat.h>

using namespace imageworkerwire;

namespace {

std::int64_t bytesOf(const FileDescriptor &file)
{
    struct stat status = {};
    return ::fstat(file.number(), &status) == 0 ? status.st_size : -1;
}

QByteArray read(const FileDescriptor &file, std::int64_t length)
{
    QByteArray bytes(length, Qt::Uninitialized);
    const ssize_t count = ::pread(file.number(), bytes.data(), static_cast<std::size_t>(length), 0);
    return count == length ? bytes : QByteArray();
}

/// A file in memory whose size nobody can change; not open when there can be none.
FileDescriptor memoryOf(std::int64_t bytes)
{
    FileDescriptor memory(::memfd_create("thumbnail", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    constexpr int FixedSize = F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL;
    const bool isFixed =
        ::ftruncate(memory.number(), bytes) == 0 && ::fcntl(memory.number(), F_ADD_SEALS, FixedSize) == 0;
    return isFixed ? std::move(memory) : FileDescriptor();
}

QSize announcedSize(const Reply &reply)
{
    return {reply.width, reply.height};
}

std::int64_t pixelsOf(QSize size)
{
    return std::int64_t{size.width()} * size.height();
}

tl::unexpected<ImageWorkerFault> failed(ImageWorkerFault fault)
{
    return tl::unexpected(fault);
}

} // namespace

tl::expected<Reply, ImageWorkerFault>
ImageWorkerProcess::ask(const Request &request, const FileDescriptor &file, std::chrono::milliseconds limit)
{
    const bool isSent = m_worker && sendWithDescriptor(m_worker->socket().number(), request, file.number());
    const std::optional<Reply> reply = isSent ? m_worker->receiveReply(limit) : std::nullopt;
    if (!reply) {
        m_worker.reset();
        return failed(ImageWorkerFault::Unreadable);
    }
    if (reply->fault == NoFault) {
        return *reply;
    }
    return failed(reply->fault == ImageWorkerFault::CannotWrite ? ImageWorkerFault::CannotWrite
                                                                : ImageWorkerFault::Unreadable);
}

tl::expected<void, ImageWorkerFault> ImageWorkerProcess::open(const FileDescriptor &source)
{
    if (!m_worker) {
        return failed(ImageWorkerFault::NotLockedDown);
    }
    const auto reply = ask({.kind = RequestKind::Open}, source, m_limits.open);
    if (!reply) {
        return failed(reply.error());
    }
    m_size = announcedSize(*reply);
    if (m_size.isEmpty() || pixelsOf(m_size) > ImageWorkerLimits::maximumPixels) {
        m_worker.reset();
        return failed(ImageWorkerFault::Unreadable);
    }
    m_sourceBytes = bytesOf(source);
    return {};
}

tl::expected<void, ImageWorkerFault> ImageWorkerProcess::write(const FileDescriptor &output,
                                                               OutputFormat format, double jpegQuality)
{
    const Request request = {.kind = RequestKind::Write, .format = format, .jpegQuality = jpegQuality};
    const auto reply = ask(request, output, writeLimit());
    m_worker.reset();
    if (!reply) {
        return failed(reply.error());
    }
    return isPlausible(output, format) ? tl::expected<void, ImageWorkerFault>()
                                       : failed(ImageWorkerFault::Unreadable);
}

tl::expected<QImage, ImageWorkerFault> ImageWorkerProcess::thumbnail(int maximumSide)
{
    constexpr std::int64_t PixelBytes = 4;
    const FileDescriptor picture = memoryOf(PixelBytes * maximumSide * maximumSide);
    const auto reply =
        ask({.kind = RequestKind::Thumbnail, .maximumSide = maximumSide}, picture, writeLimit());
    if (!reply) {
        return failed(reply.error());
    }
    const QSize size = announcedSize(*reply);
    if (size.isEmpty() || std::max(size.width(), size.height()) > maximumSide) {
        m_worker.reset();
        return failed(ImageWorkerFault::Unreadable);
    }
    const QByteArray pixels = read(picture, PixelBytes * pixelsOf(size));
    if (pixels.isEmpty()) {
        return failed(ImageWorkerFault::Unreadable);
    }
    return QImage(reinterpret_cast<const uchar *>(pixels.constData()), size.width(), size.height(),
                  PixelBytes * size.width(), QImage::Format_RGBA8888)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied); // what painting takes; a copy of its own
}

std::chrono::milliseconds ImageWorkerProcess::writeLimit() const
{
    constexpr int Megapixel = 1'000'000;
    return m_limits.write + m_limits.perMegapixel * (pixelsOf(m_size) / Megapixel);
}

bool ImageWorkerProcess::isPlausible(const FileDescriptor &output, OutputFormat format) const
{
    // Encoders work on blocks of up to 16 pixels square. Noise at the best quality takes up to five bytes for
    // each pixel; metadata come from the source.
    constexpr std::int64_t BytesOfPixel = 6;
    constexpr std::int64_t Headers = std::int64_t{1} << 20;
    constexpr int Block = 16;
    const auto padded = [](std::int64_t side) { return (side + Block - 1) / Block * Block; };
    const std::int64_t most =
        BytesOfPixel * padded(m_size.width()) * padded(m_size.height()) + m_sourceBytes + Headers;
    const QByteArray start = format == OutputFormat::png ? QByteArrayLiteral("\x89PNG\r\n\x1A\n")
                                                         : QByteArrayLiteral("\xFF\xD8\xFF");
    return read(output, start.size()) == start && bytesOf(output) <= most;
}
