// A worker that, once locked down as the real one is, does what its source file orders: the first word in it.
// Should an order succeed, it answers that all is well, which no test expects.

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
#include <string_view>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace imageworkerwire;

int conversation = -1; ///< the socket; one process has one

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

/// True when the order could be carried out: the lock-down has a hole.
bool succeeded(std::string_view order, int source)
{
    if (order == "open") {
        return ::open("/etc/passwd", O_RDONLY) >= 0;
    }
    if (order == "create") {
        return ::open("/tmp/disobedient", O_WRONLY | O_CREAT, 0600) >= 0;
    }
    if (order == "socket") {
        return ::socket(AF_INET, SOCK_STREAM, 0) >= 0;
    }
    if (order == "exec") {
        return ::execl("/bin/true", "true", nullptr) == 0;
    }
    if (order == "fork") {
        return ::fork() >= 0;
    }
    if (order == "vfork") {
        return ::syscall(SYS_vfork) >= 0;
    }
    if (order == "ptrace") {
        return ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0;
    }
    if (order == "write-source") {
        return ::write(source, "x", 1) == 1;
    }
    if (order == "truncate-source") {
        return ::ftruncate(source, 0) == 0;
    }
    if (order == "allocate") {
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
    return true;
}

void obey(std::string_view order, int source)
{
    if (order == "crash") {
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
    if (!imageworker::tieToParent(std::atoi(arguments[1])) || !imageworker::loadDecoders()) {
        return EXIT_FAILURE;
    }
    imageworker::raiseWorkers(NurseryDescriptor, work);
    return EXIT_SUCCESS;
}
