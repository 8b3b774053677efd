#include "ImageWorkerChild.h"

#include "DescriptorMessage.h"
#include "ImageWorkerWire.h"

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
        ::posix_spawn_file_actions_adddup2(&m_actions, socket, NurseryDescriptor);
        ::posix_spawn_file_actions_addclosefrom_np(&m_actions, NurseryDescriptor + 1);
    }
    const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions = {};
};

struct SocketPair
{
    FileDescriptor ours;
    FileDescriptor theirs;

    static std::optional<SocketPair> create()
    {
        std::array<int, 2> ends = {-1, -1};
        if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
            return std::nullopt;
        }
        return SocketPair{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    }
};

} // namespace

std::shared_ptr<ImageWorkerChild> ImageWorkerChild::start(const QString &program)
{
    auto ends = SocketPair::create();
    if (!ends) {
        return nullptr;
    }
    SpawnActions actions;
    actions.giveOnly(ends->theirs.number());
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
    return std::make_shared<ImageWorkerChild>(std::move(process), std::move(ends->ours));
}

std::shared_ptr<ImageWorkerChild> ImageWorkerChild::raiseWorker(std::chrono::milliseconds limit) const
{
    auto ends = SocketPair::create();
    if (!ends || !sendWithDescriptor(m_socket.number(), Birth{}, ends->theirs.number()) ||
        !awaitWord(limit)) {
        return nullptr;
    }
    auto born = receiveWithDescriptor<Birth>(m_socket.number());
    if (!born) {
        return nullptr;
    }
    return std::make_shared<ImageWorkerChild>(std::move(born->descriptor), std::move(ends->ours));
}

ImageWorkerChild::~ImageWorkerChild()
{
    kill();
    pollfd ended = {m_process.number(), POLLIN, 0};
    while (::poll(&ended, 1, -1) < 0 && errno == EINTR) { // until its files are closed
    }
    // Only the program itself is a child of this process; it takes in its workers.
    ::waitid(P_PIDFD, static_cast<id_t>(m_process.number()), nullptr, WEXITED | WNOHANG);
}

bool ImageWorkerChild::isRunning() const
{
    pollfd ended = {m_process.number(), POLLIN, 0};
    return ::poll(&ended, 1, 0) == 0;
}

bool ImageWorkerChild::awaitWord(std::chrono::milliseconds limit) const
{
    QDeadlineTimer deadline(limit);
    pollfd waiting = {m_socket.number(), POLLIN, 0};
    int ready = 0;
    do {
        ready = ::poll(&waiting, 1, static_cast<int>(deadline.remainingTime()));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

void ImageWorkerChild::kill()
{
    m_isKilled = true;
    ::syscall(SYS_pidfd_send_signal, m_process.number(), SIGKILL, nullptr, 0);
}
