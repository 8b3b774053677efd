#include "Nursery.h"

#include "DescriptorMessage.h"
#include "ImageWorkerWire.h"
#include "LockDown.h"

#include <csignal>
#include <cstdlib>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace imageworker {

using namespace imageworkerwire;

namespace {

/// Takes the workers that have ended, so that their processor time is booked to this program.
void takeEnded(int /*signal*/)
{
    const int error = errno;
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
    errno = error;
}

} // namespace

void raiseWorkers(int socket, void (*work)(int socket))
{
    ::signal(SIGCHLD, takeEnded);
    const pid_t self = ::getpid();
    sigset_t endings;
    sigemptyset(&endings);
    sigaddset(&endings, SIGCHLD);
    while (const auto asked = receiveWithDescriptor<Birth>(socket)) {
        // A worker that ends at once must not be taken before it could be opened.
        ::pthread_sigmask(SIG_BLOCK, &endings, nullptr);
        const pid_t worker = ::fork();
        if (worker == 0) {
            ::pthread_sigmask(SIG_UNBLOCK, &endings, nullptr);
            ::close(socket);
            if (tieToParent(self)) {
                work(asked->descriptor.number());
            }
            std::_Exit(EXIT_SUCCESS);
        }
        const FileDescriptor process(static_cast<int>(::syscall(SYS_pidfd_open, worker, 0)));
        ::pthread_sigmask(SIG_UNBLOCK, &endings, nullptr);
        if (worker < 0 || !process.isOpen() || !sendWithDescriptor(socket, Birth{}, process.number())) {
            return;
        }
    }
}

} // namespace imageworker
