#include "LockDown.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <initializer_list>
#include <linux/landlock.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/sysinfo.h>
#include <unistd.h>

namespace imageworker {

namespace {

constexpr rlim_t Mebibyte = 1ULL << 20;
constexpr rlim_t Gibibyte = 1ULL << 30;
constexpr rlim_t AddressSpace = 3 * Gibibyte;

bool limit(__rlimit_resource resource, rlim_t value)
{
    const rlimit both = {value, value};
    return ::setrlimit(resource, &both) == 0;
}

/// The limit counts the threads of all processes of this user, so it is put above those of the whole system.
/// When others start many more meanwhile, a photo is decoded on fewer threads.
bool limitThreads()
{
    constexpr rlim_t Own = 64;
    struct sysinfo system = {};
    return ::sysinfo(&system) == 0 && limit(RLIMIT_NPROC, system.procs + Own);
}

/// Until limitMemory() is called, which can make more of it.
bool limitMemoryForStructure()
{
    const rlimit data = {256 * Mebibyte, AddressSpace};
    return limit(RLIMIT_AS, AddressSpace) && ::setrlimit(RLIMIT_DATA, &data) == 0;
}

/// Never computed from the free memory: that would refuse sound photos on a busy machine.
bool limitResources()
{
    constexpr rlim_t ProcessorSeconds = 1800;
    constexpr rlim_t Descriptors = 32;
    ::signal(SIGXFSZ, SIG_IGN); // a copy that grows too large is a failed write
    return limitMemoryForStructure() && limitThreads() && limit(RLIMIT_FSIZE, 2 * Gibibyte) &&
           limit(RLIMIT_CPU, ProcessorSeconds) && limit(RLIMIT_NOFILE, Descriptors) && limit(RLIMIT_CORE, 0);
}

/// Landlock, with every right of its first version handled and none granted. On a kernel without it only the
/// call filter remains.
bool closeFileSystem()
{
    constexpr std::uint64_t AllRightsOfFirstVersion = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;
    landlock_ruleset_attr attributes = {};
    attributes.handled_access_fs = AllRightsOfFirstVersion;
    const auto ruleset =
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, sizeof(attributes), 0));
    if (ruleset < 0) {
        return errno == ENOSYS || errno == EOPNOTSUPP;
    }
    const bool restricted = ::syscall(SYS_landlock_restrict_self, ruleset, 0) == 0;
    ::close(ruleset);
    return restricted;
}

/// A seccomp filter under construction. Once a rule could not be added, load() fails.
class CallFilter
{
public:
    CallFilter()
        : m_filter(seccomp_init(SCMP_ACT_ERRNO(ENOSYS)))
        , m_isComplete(m_filter != nullptr)
    {}
    ~CallFilter() { seccomp_release(m_filter); }
    CallFilter(const CallFilter &) = delete;
    CallFilter &operator=(const CallFilter &) = delete;

    void add(std::uint32_t action, std::initializer_list<const char *> calls)
    {
        for (const char *call : calls) {
            addIf(action, call, {});
        }
    }
    /// For calls whose arguments meet all of @p conditions. A call that machines of this kind do not have is
    /// left out; a name that the library does not know is a mistake.
    void addIf(std::uint32_t action, const char *call, std::initializer_list<scmp_arg_cmp> conditions)
    {
        const int number = seccomp_syscall_resolve_name(call);
        const bool isMissing = number < 0 && number != __NR_SCMP_ERROR;
        m_isComplete =
            m_isComplete && (isMissing || seccomp_rule_add_array(m_filter, action, number,
                                                                 static_cast<unsigned>(conditions.size()),
                                                                 conditions.begin()) == 0);
    }
    bool load() { return m_isComplete && seccomp_load(m_filter) == 0; }

private:
    scmp_filter_ctx m_filter;
    bool m_isComplete;
};

/// Argument number @p argument has @p value in the bits of @p mask.
scmp_arg_cmp bits(unsigned argument, scmp_datum_t mask, scmp_datum_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

scmp_arg_cmp is(unsigned argument, scmp_datum_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

/// A call that no rule names fails as one that the kernel does not have, so that a newer C library falls back
/// to an older call.
bool filterCalls()
{
    constexpr std::uint32_t Allow = SCMP_ACT_ALLOW;
    constexpr std::uint32_t Kill = SCMP_ACT_KILL_PROCESS;
    CallFilter filter;
    // Transfer: the photo, the output and the socket are open already.
    filter.add(Allow, {"read", "write", "pread64", "pwrite64", "readv", "writev", "lseek", "fstat", "close",
                       "recvmsg", "sendto", "recvfrom"});
    // Memory: the allocator's calls. Memory that can be executed is not needed once the libraries are loaded.
    filter.add(Allow, {"munmap", "mremap", "madvise", "brk"});
    for (const char *call : {"mmap", "mprotect"}) {
        filter.addIf(Allow, call, {bits(2, PROT_EXEC, 0)});
        filter.addIf(Kill, call, {bits(2, PROT_EXEC, PROT_EXEC)});
    }
    // Threads: decoding uses all cores. Not clone3, whose flags a filter cannot see.
    filter.add(Allow, {"futex", "set_robust_list", "rseq", "rt_sigprocmask", "rt_sigreturn", "sched_yield",
                       "sched_getaffinity", "sched_getparam", "sched_getscheduler", "gettid", "getpid",
                       "exit", "exit_group", "restart_syscall"});
    filter.addIf(Allow, "clone", {bits(0, CLONE_THREAD, CLONE_THREAD)});
    filter.addIf(Kill, "clone", {bits(0, CLONE_THREAD, 0)});
    // Clocks and random numbers: used inside the libraries.
    filter.add(Allow, {"clock_gettime", "clock_getres", "gettimeofday", "clock_nanosleep", "nanosleep",
                       "getrandom"});
    // This process itself: the C library reads its limits, an opened photo settles the one of memory, and a
    // thumbnail lowers its priority.
    filter.addIf(Allow, "prlimit64", {is(0, 0), is(2, 0)});
    filter.addIf(Allow, "prlimit64", {is(0, 0), is(1, RLIMIT_DATA)});
    filter.addIf(Allow, "setpriority", {is(0, PRIO_PROCESS), is(1, 0)});
    // Files by name: the C library looks for some under /proc and /sys and does without. Nothing is created.
    filter.addIf(SCMP_ACT_ERRNO(ENOENT), "openat", {bits(2, O_ACCMODE, O_RDONLY)});
    filter.addIf(Kill, "openat", {bits(2, O_WRONLY, O_WRONLY)});
    filter.addIf(Kill, "openat", {bits(2, O_RDWR, O_RDWR)});
    filter.add(Kill, {"truncate", "unlinkat", "renameat", "renameat2", "linkat", "symlinkat", "mkdirat",
                      "fchmod", "fchmodat", "fchown", "fchownat", "open_by_handle_at", "memfd_create"});
    // Other processes: no decoder starts or touches one.
    filter.add(Kill, {"execve", "execveat", "fork", "vfork", "ptrace", "process_vm_readv",
                      "process_vm_writev", "kill", "pidfd_send_signal"});
    // Network: no decoder opens a connection.
    filter.add(Kill, {"socket", "socketpair", "connect", "bind", "listen", "accept", "accept4"});
    // Kernel interfaces: the usual ways out of a sandbox.
    filter.add(Kill, {"mount", "umount2", "setns", "unshare", "pivot_root", "chroot", "bpf", "io_uring_setup",
                      "perf_event_open", "keyctl", "add_key", "init_module", "finit_module", "userfaultfd"});
    return filter.load();
}

} // namespace

bool lockDown()
{
    // Not dumpable: no other process of the user may look into this one.
    return limitResources() && ::prctl(PR_SET_DUMPABLE, 0) == 0 &&
           ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && closeFileSystem() && filterCalls();
}

void limitMemory(std::uint64_t bytes)
{
    limit(RLIMIT_DATA, std::min<rlim_t>(bytes, AddressSpace));
}

} // namespace imageworker
