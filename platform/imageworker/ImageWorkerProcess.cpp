#include "ImageWorkerProcess.h"

#include "DescriptorMessage.h"

#include <optional>
#include <sys/mman.h>
#include <sys/stat.h>

using namespace imageworkerwire;

namespace {

std::optional<Reply> receiveReply(const FileDescriptor &socket, std::chrono::milliseconds limit)
{
    Reply reply;
    if (!ImageWorkerChild::awaitMessage(socket, limit) ||
        ::recv(socket.number(), &reply, sizeof(reply), MSG_DONTWAIT | MSG_TRUNC) != ssize_t{sizeof(reply)}) {
        return std::nullopt;
    }
    return reply;
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
    const std::optional<Reply> reply = isSent ? receiveReply(m_worker->socket(), limit) : std::nullopt;
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
    if (reply->pixels <= 0 || reply->pixels > ImageWorkerLimits::maximumPixels) {
        m_worker.reset();
        return failed(ImageWorkerFault::Unreadable);
    }
    m_pixels = reply->pixels;
    return {};
}

tl::expected<void, ImageWorkerFault> ImageWorkerProcess::write(const FileDescriptor &output,
                                                               OutputFormat format, double jpegQuality)
{
    const Request request = {.kind = RequestKind::Write, .format = format, .jpegQuality = jpegQuality};
    return ask(request, output, writeLimit()).map([](const Reply & /*done*/) {});
}

tl::expected<QByteArray, ImageWorkerFault> ImageWorkerProcess::thumbnail(int maximumSide)
{
    const FileDescriptor picture(::memfd_create("thumbnail", MFD_CLOEXEC));
    const auto reply =
        ask({.kind = RequestKind::Thumbnail, .maximumSide = maximumSide}, picture, writeLimit());
    if (!reply) {
        return failed(reply.error());
    }
    struct stat status = {};
    if (::fstat(picture.number(), &status) != 0 || status.st_size <= 0 ||
        status.st_size > ImageWorkerLimits::maximumThumbnailBytes) {
        return failed(ImageWorkerFault::Unreadable);
    }
    QByteArray bytes(static_cast<qsizetype>(status.st_size), Qt::Uninitialized);
    if (::pread(picture.number(), bytes.data(), static_cast<std::size_t>(bytes.size()), 0) != bytes.size()) {
        return failed(ImageWorkerFault::Unreadable);
    }
    return bytes;
}

std::chrono::milliseconds ImageWorkerProcess::writeLimit() const
{
    constexpr int Megapixel = 1'000'000;
    return m_limits.write + m_limits.perMegapixel * (m_pixels / Megapixel);
}
