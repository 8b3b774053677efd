#include "ImageWorkerChild.h"

#include "DescriptorMessage.h"

#include <QDeadlineTimer>
#include <QFile>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/syscall.h>
#include <sys/wait.h>

using namespace imageworkerwire;

namespace {

/// What posix_spawn does with descriptors in the child.
class SpawnActions
{
public:
    SpawnActions() { ::posix_spawn_file_actions_init(&m_actions); }
    ~SpawnActions() { ::posix_spawn_file_actions_destroy(&m_actions); }
    SpawnActions(const SpawnActions &) = delete;
    SpawnActions &operator=(const SpawnActions &) = delete;

    /// The standard streams become /dev/null, the socket gets its number, and every other descriptor is
    /// closed.
    void passOnly(int socket)
    {
        for (int stream = 0; stream < 3; ++stream) {
            ::posix_spawn_file_actions_addopen(&m_actions, stream, "/dev/null", O_RDWR, 0);
        }
        ::posix_spawn_file_actions_adddup2(&m_actions, socket, ForkServerDescriptor);
        ::posix_spawn_file_actions_addclosefrom_np(&m_actions, ForkServerDescriptor + 1);
    }
    const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions = {};
};

struct SocketPair
{
    FileDescriptor ours;
    FileDescriptor theirs;

    /// Neither end is open when there can be no more.
    static SocketPair create()
    {
        std::array<int, 2> ends = {-1, -1};
        ::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data());
        return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    }
};

/// Waits for a message or the other end's exit; false when neither comes within `limit`.
bool awaitMessage(const FileDescriptor &socket, std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    pollfd message = {socket.number(), POLLIN, 0};
    int ready = 0;
    do {
        ready = ::poll(&message, 1, static_cast<int>(deadline.remainingTime()));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

} // namespace

std::shared_ptr<ImageWorkerChild> ImageWorkerChild::startForkServer(const QString &program)
{
    SocketPair ends = SocketPair::create();
    SpawnActions actions;
    actions.passOnly(ends.theirs.number());
    std::string path = QFile::encodeName(program).toStdString();
    std::array<char *, 2> arguments = {path.data(), nullptr};
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
    return std::make_shared<ImageWorkerChild>(std::move(process), std::move(ends.ours));
}

FileDescriptor ImageWorkerChild::requestWorker() const
{
    SocketPair ends = SocketPair::create();
    const bool isSent = sendWithDescriptor(m_socket.number(), SpawnRequest{}, ends.theirs.number());
    return isSent ? std::move(ends.ours) : FileDescriptor();
}

tl::expected<std::shared_ptr<ImageWorkerChild>, ImageWorkerChild::StartFailure>
ImageWorkerChild::receiveWorker(FileDescriptor socket, std::chrono::milliseconds limit)
{
    if (!awaitMessage(socket, limit)) {
        return tl::unexpected(StartFailure::TimedOut);
    }
    auto started = receiveWithDescriptor<WorkerStarted>(socket.number());
    if (!started) {
        return tl::unexpected(StartFailure::Refused);
    }
    auto worker = std::make_shared<ImageWorkerChild>(std::move(started->descriptor), std::move(socket));
    if (!awaitMessage(worker->socket(), limit)) {
        return tl::unexpected(StartFailure::TimedOut);
    }
    const auto reply = worker->receiveReply(limit);
    if (!reply || reply->fault != NoFault) {
        return tl::unexpected(StartFailure::Refused);
    }
    return worker;
}

ImageWorkerChild::~ImageWorkerChild()
{
    kill();
    // Reaps the fork server. A worker is no child of this process; the fork server reaps it.
    ::waitid(P_PIDFD, static_cast<id_t>(m_process.number()), nullptr, WEXITED | WNOHANG);
}

bool ImageWorkerChild::isRunning() const
{
    pollfd exit = {m_process.number(), POLLIN, 0};
    return ::poll(&exit, 1, 0) == 0;
}

std::optional<Reply> ImageWorkerChild::receiveReply(std::chrono::milliseconds limit) const
{
    Reply reply;
    if (!awaitMessage(m_socket, limit) || ::recv(m_socket.number(), &reply, sizeof(reply),
                                                 MSG_DONTWAIT | MSG_TRUNC) != ssize_t{sizeof(reply)}) {
        return std::nullopt;
    }
    return reply;
}

void ImageWorkerChild::signal(int number) const
{
    ::syscall(SYS_pidfd_send_signal, m_process.number(), number, nullptr, 0);
}

void ImageWorkerChild::kill() const
{
    signal(SIGKILL);
    pollfd exit = {m_process.number(), POLLIN, 0};
    while (::poll(&exit, 1, -1) < 0 && errno == EINTR) {
    }
}
