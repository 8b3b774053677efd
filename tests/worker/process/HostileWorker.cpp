// A worker program whose workers, locked down as the real ones are, do what their source file says: its
// content is the name of an action. An action that the lock-down should have stopped reports success, which
// no test expects.

#include "DescriptorMessage.h"
#include "ForkServer.h"
#include "ImageWorkerWire.h"
#include "TileDecoder.h"

#include <array>
#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <map>
#include <seccomp.h>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using namespace imageworkerwire;

int workerSocket = -1;
const char *program = "";

void reply(const Reply &message)
{
    ::send(workerSocket, &message, sizeof(message), MSG_NOSIGNAL);
}

bool claims(std::int32_t width, std::int32_t height)
{
    reply({NoFault, width, height});
    return true;
}

/// The file of the next request.
FileDescriptor receiveFile()
{
    auto message = receiveWithDescriptor<Request>(workerSocket);
    if (!message) {
        std::_Exit(EXIT_SUCCESS);
    }
    return std::move(message->descriptor);
}

/// This program once more; with a socket it reports success at once.
void executeProgram()
{
    ::execl(program, program, std::to_string(workerSocket).c_str(), nullptr);
}

bool opens(int flags, int expectedError)
{
    return ::open((flags & O_CREAT) != 0 ? "/tmp/hostile" : "/etc/passwd", flags, 0600) >= 0 ||
           errno != expectedError;
}

rlim_t limitOf(pid_t process, __rlimit_resource resource)
{
    rlimit limit = {RLIM_INFINITY, RLIM_INFINITY};
    ::syscall(SYS_prlimit64, process, resource, nullptr, &limit);
    return limit.rlim_max;
}

void spin()
{
    for (std::atomic<unsigned> turns = 0;;) {
        ++turns;
    }
}

/// Leaves holes: the limit counts the size, and the disk is spared.
bool writesWithoutEnd()
{
    claims(1, 1);
    const FileDescriptor output = receiveFile();
    const std::array<char, 65'536> block = {};
    while (::write(output.number(), block.data(), block.size()) > 0) {
        ::lseek(output.number(), 1'000'000'000, SEEK_CUR);
    }
    reply({ImageWorkerFault::CannotWrite});
    return false;
}

/// A copy that begins with @p start and is @p length bytes long.
bool writesCopy(std::string_view start, off_t length)
{
    claims(1, 1);
    const FileDescriptor output = receiveFile();
    return ::write(output.number(), start.data(), start.size()) == static_cast<ssize_t>(start.size()) &&
           (length == 0 || ::pwrite(output.number(), "", 1, length - 1) == 1);
}

/// A preview of a size that nobody asked for.
bool claimsPreview(std::int32_t width, std::int32_t height)
{
    claims(1, 1);
    receiveFile();
    return claims(width, height);
}

/// Writes beyond the end of the file that takes the preview.
bool growsPreview()
{
    claims(1, 1);
    const FileDescriptor output = receiveFile();
    const off_t length = ::lseek(output.number(), 0, SEEK_END);
    const bool isGrown = ::pwrite(output.number(), "", 1, length) == 1;
    reply({isGrown ? NoFault : ImageWorkerFault::Unreadable, 1, 1});
    return false;
}

/// For a call that kills the process: returning from it is a success, whatever it returned.
template<typename Call>
bool survives(const Call &call)
{
    call();
    return true;
}

/// Nothing is tried where the processor has no such call.
bool survivesCall(const char *name)
{
    const int number = seccomp_syscall_resolve_name(name);
    return number >= 0 && survives([number] { ::syscall(number); });
}

constexpr std::size_t HalfGibibyte = std::size_t{1} << 29;
constexpr std::size_t FourGibibytes = std::size_t{4} << 30;
const rlimit zero = {0, 0};

/// Each returns whether it succeeded.
const std::map<std::string_view, bool (*)(int source)> actions = {
    {"create", [](int) { return survives([] { ::open("/tmp/hostile", O_WRONLY | O_CREAT, 0600); }); }},
    {"socket", [](int) { return survives([] { ::socket(AF_INET, SOCK_STREAM, 0); }); }},
    {"exec", [](int) { return survives(executeProgram); }},
    {"clone", [](int) { return survives(::fork); }}, // the C library's fork() uses clone()
    {"fork", [](int) { return survivesCall("fork"); }},
    {"vfork", [](int) { return survivesCall("vfork"); }},
    {"ptrace", [](int) { return survives([] { ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr); }); }},
    {"crash", [](int) { return survives(std::abort); }},
    {"spin", [](int) { return survives(spin); }},
    {"sleep", [](int) { return survives(receiveFile); }},  // nothing is sent
    {"open", [](int) { return opens(O_RDONLY, ENOENT); }}, // the filter's error, not Landlock's
    {"look",
     [](int) {
         return ::syscall(SYS_newfstatat, AT_FDCWD, "/etc/passwd",
                          std::array<char, sizeof(struct stat)>().data(), AT_EMPTY_PATH) == 0;
     }},
    {"slow-group", [](int) { return ::setpriority(PRIO_PGRP, 0, 7) == 0; }},
    {"limits-of-parent", [](int) { return limitOf(::getppid(), RLIMIT_NOFILE) != RLIM_INFINITY; }},
    {"change-limit", [](int) { return ::syscall(SYS_prlimit64, 0, RLIMIT_CORE, &zero, nullptr) == 0; }},
    {"unlimited-time", [](int) { return limitOf(0, RLIMIT_CPU) > 3600; }},
    {"unlimited-files", [](int) { return limitOf(0, RLIMIT_NOFILE) > 64; }},
    {"unlimited-threads", [](int) { return limitOf(0, RLIMIT_NPROC) > 65'535 + 64; }},
    {"send-descriptor",
     [](int source) {
         return sendWithDescriptor(workerSocket, Reply{NoFault, 1, 1}, source);
     }},
    {"truncate-source", [](int source) { return ::ftruncate(source, 0) == 0; }},
    {"allocate",
     [](int) {
         return ::mmap(nullptr, FourGibibytes, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1,
                       0) != MAP_FAILED;
     }},
    {"allocate-data",
     [](int) {
         return ::mmap(nullptr, HalfGibibyte, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0) != MAP_FAILED;
     }},
    {"huge", [](int) { return claims(50'000, 50'000); }},
    {"flat", [](int) { return claims(100, 0); }},
    {"negative", [](int) { return claims(-5, -4); }},
    {"nonsense", [](int) { return ::send(workerSocket, "?", 1, MSG_NOSIGNAL) == 1; }},
    {"png-for-jpeg", [](int) { return writesCopy("\x89PNG\r\n\x1A\n", 100); }},
    {"empty-copy", [](int) { return writesCopy("", 0); }},
    {"huge-copy", [](int) { return writesCopy("\xFF\xD8\xFF", 3'000'000); }},
    {"wide-preview", [](int) { return claimsPreview(241, 1); }},
    {"negative-preview", [](int) { return claimsPreview(-1, -1); }},
    {"grown-preview", [](int) { return growsPreview(); }},
    {"endless-write", [](int) { return writesWithoutEnd(); }},
    // For the worker without a call filter: Landlock's error.
    {"open-unfiltered", [](int) { return opens(O_RDONLY, EACCES); }},
    {"create-unfiltered", [](int) { return opens(O_WRONLY | O_CREAT, EACCES); }},
    {"exec-unfiltered", [](int) { return survives(executeProgram) && errno != EACCES; }},
};

void act(int socket)
{
    workerSocket = socket;
    ::fcntl(socket, F_SETFD, 0); // so that an executed program could still reply
    const FileDescriptor source = receiveFile();
    std::array<char, 64> name = {};
    const ssize_t length = ::read(source.number(), name.data(), name.size());
    const auto found = actions.find({name.data(), length > 0 ? static_cast<std::size_t>(length) : 0});
    const bool isSuccess = found == actions.end() || found->second(source.number());
    reply({isSuccess ? NoFault : ImageWorkerFault::Unreadable, 1, 1});
    receiveFile();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    program = arguments[0];
    if (argumentCount > 1) {
        workerSocket = std::atoi(arguments[1]);
        reply({NoFault, 1, 1});
    } else if (imageworker::loadDecoders()) {
        imageworker::runForkServer(ForkServerDescriptor, act);
    }
    return EXIT_SUCCESS;
}
