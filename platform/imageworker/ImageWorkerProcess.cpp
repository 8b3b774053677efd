#include "ImageWorkerProcess.h"

#include "DescriptorMessage.h"

#include <optional>
#include <sys/mman.h>
#include <sys/stat.h>

using namespace imageworkerwire;

namespace {

std::optional<Reply> receiveReply(const ImageWorkerChild &worker, std::chrono::milliseconds limit)
{
    Reply reply;
    if (!worker.awaitWord(limit) ||
        ::recv(worker.socket(), &reply, sizeof(reply), MSG_DONTWAIT | MSG_TRUNC) != ssize_t{sizeof(reply)}) {
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
    const bool asked = m_child && m_child->isRunning() && file.isOpen() &&
                       sendWithDescriptor(m_child->socket(), request, file.number());
    const std::optional<Reply> reply = asked ? receiveReply(*m_child, limit) : std::nullopt;
    if (!reply) {
        m_child.reset();
        return failed(ImageWorkerFault::Unreadable);
    }
    switch (reply->outcome) {
    case Outcome::Done:
        return *reply;
    case Outcome::CannotWrite:
        return failed(ImageWorkerFault::CannotWrite);
    case Outcome::NotLockedDown:
    case Outcome::Unreadable:
        break;
    }
    return failed(ImageWorkerFault::Unreadable);
}

tl::expected<void, ImageWorkerFault> ImageWorkerProcess::awaitLockDown()
{
    const std::optional<Reply> greeting = m_child ? receiveReply(*m_child, m_limits.start) : std::nullopt;
    if (greeting && greeting->outcome == Outcome::Done) {
        return {};
    }
    const bool wasKilled = m_child && m_child->isKilled();
    m_child.reset();
    return failed(wasKilled ? ImageWorkerFault::Unreadable : ImageWorkerFault::NotLockedDown);
}

tl::expected<ImageSize, ImageWorkerFault> ImageWorkerProcess::open(const FileDescriptor &source)
{
    if (const auto lockedDown = awaitLockDown(); !lockedDown) {
        return failed(lockedDown.error());
    }
    Request request;
    request.kind = RequestKind::Open;
    const auto reply = ask(request, source, m_limits.open);
    if (!reply) {
        return failed(reply.error());
    }
    if (reply->width <= 0 || reply->height <= 0 ||
        std::int64_t{reply->width} * reply->height > MaximumPixels) {
        m_child.reset();
        return failed(ImageWorkerFault::Unreadable);
    }
    m_size = {reply->width, reply->height};
    return m_size;
}

tl::expected<void, ImageWorkerFault> ImageWorkerProcess::write(const FileDescriptor &scratch,
                                                               ImageFormat format, double jpegQuality)
{
    Request request;
    request.kind = RequestKind::Write;
    request.format = format == ImageFormat::Png ? Format::Png : Format::Jpeg;
    request.jpegQuality = jpegQuality;
    const auto reply = ask(request, scratch, writeLimit());
    if (!reply) {
        return failed(reply.error());
    }
    return {};
}

tl::expected<QByteArray, ImageWorkerFault> ImageWorkerProcess::thumbnail(int maximumSide)
{
    const FileDescriptor picture(::memfd_create("thumbnail", MFD_CLOEXEC));
    Request request;
    request.kind = RequestKind::Thumbnail;
    request.maximumSide = maximumSide;
    const auto reply = ask(request, picture, writeLimit());
    if (!reply) {
        return failed(reply.error());
    }
    struct stat status = {};
    if (::fstat(picture.number(), &status) != 0 || status.st_size <= 0 ||
        status.st_size > MaximumThumbnailBytes) {
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
    constexpr std::int64_t Megapixel = 1'000'000;
    const std::int64_t megapixels = std::int64_t{m_size.width} * m_size.height / Megapixel;
    return m_limits.write + m_limits.perMegapixel * megapixels;
}
