#include "ForkServer.h"

#include "DescriptorMessage.h"
#include "ImageWorkerWire.h"
#include "LockDown.h"

#include <csignal>
#include <cstdlib>
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

/// Gives up the rights of this process and tells the application; false when the process is to exit.
bool reportLockDown(int socket)
{
    const FileDescriptor self(static_cast<int>(::syscall(SYS_pidfd_open, ::getpid(), 0)));
    const Reply reply = {lockDown() ? NoFault : ImageWorkerFault::NotLockedDown};
    return sendWithDescriptor(socket, reply, self.number()) && reply.fault == NoFault;
}

} // namespace

void runForkServer(int socket, void (*work)(int socket))
{
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
