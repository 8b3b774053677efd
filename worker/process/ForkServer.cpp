#include "ForkServer.h"

#include "DescriptorMessage.h"
#include "ImageWorkerWire.h"
#include "LockDown.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace imageworker {

using namespace imageworkerwire;

namespace {

/// Waiting for them adds their processor time to this process's.
void reapExited(int /*signal*/)
{
    const int error = errno;
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
    errno = error;
}

/// False when that has exited already.
bool dieWithParent(pid_t parent)
{
    return ::prctl(PR_SET_PDEATHSIG, SIGKILL) == 0 && ::getppid() == parent;
}

/// Should memory run out, the kernel ends this process and its workers before anything of the user's.
void offerForMemory()
{
    const FileDescriptor file(::open("/proc/self/oom_score_adj", O_WRONLY | O_CLOEXEC));
    constexpr std::string_view First = "1000";
    static_cast<void>(!::write(file.number(), First.data(), First.size()));
}

/// Gives up the rights of this process and tells the application; false when the process is to exit.
bool reportLockDown(int socket)
{
    {
        const FileDescriptor self(static_cast<int>(::syscall(SYS_pidfd_open, ::getpid(), 0)));
        if (!sendWithDescriptor(socket, WorkerStarted(), self.number())) {
            return false;
        }
    }
    const Reply reply = {lockDown() ? NoFault : ImageWorkerFault::NotLockedDown};
    return ::send(socket, &reply, sizeof(reply), MSG_NOSIGNAL) == ssize_t{sizeof(reply)} &&
           reply.fault == NoFault;
}

} // namespace

void runForkServer(int socket, void (*work)(int socket))
{
    offerForMemory();
    ::signal(SIGCHLD, reapExited);
    const pid_t self = ::getpid();
    while (const auto request = receiveWithDescriptor<SpawnRequest>(socket)) {
        if (::fork() == 0) {
            ::close(socket);
            const int workerSocket = request->descriptor.number();
            if (dieWithParent(self) && reportLockDown(workerSocket)) {
                work(workerSocket);
            }
            std::_Exit(EXIT_SUCCESS);
        }
    }
}

} // namespace imageworker
