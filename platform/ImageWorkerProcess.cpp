#include "ImageWorkerProcess.h"

#include <QDeadlineTimer>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>

using namespace imageworkerwire;

namespace {

/// posix_spawn's list of what to do with descriptors in the child.
class SpawnActions
{
public:
    SpawnActions() { ::posix_spawn_file_actions_init(&m_actions); }
    ~SpawnActions() { ::posix_spawn_file_actions_destroy(&m_actions); }
    SpawnActions(const SpawnActions &) = delete;
    SpawnActions &operator=(const SpawnActions &) = delete;

    /// The standard streams lead nowhere, the socket gets its number, and nothing else of ours stays open.
    void giveOnly(int socket)
    {
        for (int stream = 0; stream < 3; ++stream) {
            ::posix_spawn_file_actions_addopen(&m_actions, stream, "/dev/null", O_RDWR, 0);
        }
        ::posix_spawn_file_actions_adddup2(&m_actions, socket, WorkerDescriptor);
        ::posix_spawn_file_actions_addclosefrom_np(&m_actions, WorkerDescriptor + 1);
    }
    const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions = {};
};

bool sendRequest(int socket, const Request &request, int file)
{
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control = {};
    iovec part = {const_cast<Request *>(&request), sizeof(request)};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr *header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof(int));
    std::memcpy(CMSG_DATA(header), &file, sizeof(int));
    ssize_t sent = 0;
    do {
        sent = ::sendmsg(socket, &message, MSG_NOSIGNAL);
    } while (sent < 0 && errno == EINTR);
    return sent == ssize_t{sizeof(request)};
}

std::optional<Reply> receiveReply(int socket, std::chrono::milliseconds limit)
{
    QDeadlineTimer deadline(limit);
    pollfd waiting = {socket, POLLIN, 0};
    int ready = 0;
    do {
        ready = ::poll(&waiting, 1, static_cast<int>(deadline.remainingTime()));
    } while (ready < 0 && errno == EINTR);
    Reply reply;
    if (ready <= 0 ||
        ::recv(socket, &reply, sizeof(reply), MSG_DONTWAIT | MSG_TRUNC) != ssize_t{sizeof(reply)}) {
        return std::nullopt;
    }
    return reply;
}

tl::unexpected<ImageWorkerFault> failed(ImageWorkerFault fault)
{
    return tl::unexpected(fault);
}

} // namespace

std::shared_ptr<ImageWorkerChild> ImageWorkerChild::start(const QString &program)
{
    std::array<int, 2> ends = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return nullptr;
    }
    FileDescriptor ours(ends[0]);
    const FileDescriptor theirs(ends[1]);
    SpawnActions actions;
    actions.giveOnly(theirs.number());
    std::string path = QFile::encodeName(program).toStdString();
    std::string parent = std::to_string(::getpid());
    std::array<char *, 3> arguments = {path.data(), parent.data(), nullptr};
    std::array<char *, 1> environment = {nullptr};
    pid_t identifier = 0;
    if (::posix_spawn(&identifier, path.c_str(), actions.get(), nullptr, arguments.data(),
                      environment.data()) != 0) {
        return nullptr;
    }
    FileDescriptor process(static_cast<int>(::syscall(SYS_pidfd_open, identifier, 0)));
    if (!process.isOpen()) {
        ::kill(identifier, SIGKILL);
        ::waitpid(identifier, nullptr, 0);
        return nullptr;
    }
    return std::make_shared<ImageWorkerChild>(std::move(process), std::move(ours));
}

bool ImageWorkerChild::isRunning() const
{
    pollfd ended = {m_process.number(), POLLIN, 0};
    return ::poll(&ended, 1, 0) == 0;
}

void ImageWorkerChild::kill()
{
    m_isKilled = true;
    ::syscall(SYS_pidfd_send_signal, m_process.number(), SIGKILL, nullptr, 0);
}

void ImageWorkerChild::end()
{
    kill();
    siginfo_t status = {};
    while (::waitid(P_PIDFD, static_cast<id_t>(m_process.number()), &status, WEXITED) != 0 &&
           errno == EINTR) {
    }
}

tl::expected<Reply, ImageWorkerFault>
ImageWorkerProcess::ask(const Request &request, const FileDescriptor &file, std::chrono::milliseconds limit)
{
    const bool asked = m_child && m_child->isRunning() && file.isOpen() &&
                       sendRequest(m_child->socket(), request, file.number());
    const std::optional<Reply> reply = asked ? receiveReply(m_child->socket(), limit) : std::nullopt;
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
    const std::optional<Reply> greeting =
        m_child ? receiveReply(m_child->socket(), m_limits.start) : std::nullopt;
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
