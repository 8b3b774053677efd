// A worker that, once locked down as the real one is, does what its source file orders: the first word in it.
// Should the lock-down let an order pass, it answers that all is well, which no test expects.

#include "DescriptorMessage.h"
#include "ImageWorkerWire.h"
#include "LockDown.h"
#include "Nursery.h"
#include "TileDecoder.h"

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <string>
#include <string_view>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace imageworkerwire;

int conversation = -1; ///< the socket; one process has one
pid_t parent = -1;     ///< another process of the same user
const char *program = "";

constexpr const char *AnswersAtOnce = "answer";

/// What the next request is about.
FileDescriptor receiveFile()
{
    auto received = receiveWithDescriptor<Request>(conversation);
    if (!received) {
        std::_Exit(EXIT_SUCCESS);
    }
    return std::move(received->descriptor);
}

void answer(const Reply &reply)
{
    ::send(conversation, &reply, sizeof(reply), MSG_NOSIGNAL);
}

[[noreturn]] void spin()
{
    for (std::atomic<unsigned> turns = 0;;) {
        ++turns;
    }
}

void runAnotherProgram()
{
    const std::string socket = std::to_string(conversation);
    ::execl(program, program, AnswersAtOnce, socket.c_str(), nullptr);
}

/// What the filter of calls ends the process for: whoever comes back from it has found a hole, even if
/// something else refused the call. False for other orders, which are left to do.
bool didWhatIsDeadly(std::string_view order)
{
    static const std::map<std::string_view, void (*)()> orders = {
        {"create", [] { ::open("/tmp/disobedient", O_WRONLY | O_CREAT, 0600); }},
        {"socket", [] { ::socket(AF_INET, SOCK_STREAM, 0); }},
        {"exec", runAnotherProgram},
        {"clone", [] { ::fork(); }}, // which the C library does by clone()
        {"fork", [] { ::syscall(SYS_fork); }},
        {"vfork", [] { ::syscall(SYS_vfork); }},
        {"ptrace", [] { ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr); }},
    };
    const auto found = orders.find(order);
    if (found == orders.end()) {
        return false;
    }
    found->second();
    return true;
}

/// True when memory of four gibibytes can be had.
bool allocates()
{
    constexpr std::size_t Step = std::size_t{64} * 1024 * 1024;
    constexpr int FourGibibytes = 64;
    for (int step = 0; step < FourGibibytes; ++step) {
        void *memory = std::malloc(Step);
        if (memory == nullptr) {
            return false;
        }
        std::memset(memory, 1, Step / 1024);
    }
    return true;
}

bool isUnlimited(__rlimit_resource resource, rlim_t generous)
{
    rlimit limit = {};
    return ::syscall(SYS_prlimit64, 0, resource, nullptr, &limit) != 0 || limit.rlim_max > generous;
}

/// True when the order could be carried out: the lock-down has a hole.
bool succeeded(std::string_view order, int source)
{
    if (order == "open") { // the filter says that there is no such file, whatever else would refuse it
        return ::open("/etc/passwd", O_RDONLY) >= 0 || errno != ENOENT;
    }
    if (order == "look") {
        struct stat status = {};
        return ::syscall(SYS_newfstatat, AT_FDCWD, "/etc/passwd", &status, AT_EMPTY_PATH) == 0;
    }
    if (order == "slow-group") {
        constexpr int LessUrgent = 7;
        return ::setpriority(PRIO_PGRP, 0, LessUrgent) == 0;
    }
    if (order == "limits-of-another") {
        rlimit limit = {};
        return ::syscall(SYS_prlimit64, parent, RLIMIT_NOFILE, nullptr, &limit) == 0;
    }
    if (order == "change-limit") {
        const rlimit none = {0, 0};
        return ::syscall(SYS_prlimit64, 0, RLIMIT_CORE, &none, nullptr) == 0;
    }
    if (order == "unlimited-time") {
        constexpr rlim_t Hour = 3600;
        return isUnlimited(RLIMIT_CPU, Hour);
    }
    if (order == "unlimited-files") {
        constexpr rlim_t Few = 64;
        return isUnlimited(RLIMIT_NOFILE, Few);
    }
    if (order == "truncate-source") {
        return ::ftruncate(source, 0) == 0;
    }
    // For the worker without a filter, where only the file system is closed:
    if (order == "open-unfiltered") {
        return ::open("/etc/passwd", O_RDONLY) >= 0 || errno != EACCES;
    }
    if (order == "create-unfiltered") {
        return ::open("/tmp/disobedient", O_WRONLY | O_CREAT, 0600) >= 0 || errno != EACCES;
    }
    if (order == "exec-unfiltered") {
        runAnotherProgram();
        return errno != EACCES;
    }
    return order != "allocate" || allocates();
}

void obey(std::string_view order, int source)
{
    if (didWhatIsDeadly(order)) {
        answer({Outcome::Done, 1, 1});
    } else if (order == "crash") {
        std::abort();
    } else if (order == "spin") {
        spin();
    } else if (order == "sleep") {
        int unused[2] = {};
        while (::read(conversation, unused, sizeof(unused)) >= 0) { // nobody will write
        }
    } else if (order == "huge") {
        answer({Outcome::Done, 60'000, 60'000});
    } else if (order == "negative") {
        answer({Outcome::Done, -5, 4});
    } else if (order == "nonsense") {
        ::send(conversation, "?", 1, MSG_NOSIGNAL);
    } else if (order == "endless-write") {
        answer({Outcome::Done, 4, 4});
        const FileDescriptor output = receiveFile();
        const std::array<char, 65'536> block = {};
        while (::write(output.number(), block.data(), block.size()) > 0) {
            ::lseek(output.number(), 1'000'000'000,
                    SEEK_CUR); // holes: the limit counts the size, the disk is spared
        }
        answer({Outcome::CannotWrite});
    } else {
        answer({succeeded(order, source) ? Outcome::Done : Outcome::Unreadable, 1, 1});
    }
}

void work(int socket)
{
    conversation = socket;
    parent = ::getppid();
    ::fcntl(socket, F_SETFD, 0); // a program run instead could still answer
    if (!imageworker::lockDown()) {
        return;
    }
    answer({Outcome::Done});
    const FileDescriptor source = receiveFile();
    std::array<char, 64> order = {};
    const ssize_t length = ::read(source.number(), order.data(), order.size());
    obey(std::string_view(order.data(), length > 0 ? static_cast<std::size_t>(length) : 0), source.number());
    receiveFile();
}

} // namespace

int main(int, char **arguments)
{
    program = arguments[0];
    if (std::string_view(arguments[1]) == AnswersAtOnce) {
        conversation = std::atoi(arguments[2]);
        answer({Outcome::Done, 1, 1});
        return EXIT_SUCCESS;
    }
    if (!imageworker::tieToParent(std::atoi(arguments[1])) || !imageworker::loadDecoders()) {
        return EXIT_FAILURE;
    }
    imageworker::raiseWorkers(NurseryDescriptor, work);
    return EXIT_SUCCESS;
}
