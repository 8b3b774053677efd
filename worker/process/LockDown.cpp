#include "LockDown.h"

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
#include <unistd.h>

namespace imageworker {

namespace {

bool limit(__rlimit_resource resource, rlim_t value)
{
    const rlimit both = {value, value};
    return ::setrlimit(resource, &both) == 0;
}

/// Fixed and generous: limits computed from the free memory would refuse sound photos on a busy machine.
bool limitResources()
{
    constexpr rlim_t Gibibyte = 1ULL << 30;
    constexpr rlim_t ProcessorSeconds = 1800;
    constexpr rlim_t Descriptors = 32;
    ::signal(SIGXFSZ, SIG_IGN); // a copy that grows too large is a failed write
    return limit(RLIMIT_AS, 3 * Gibibyte) && limit(RLIMIT_FSIZE, 2 * Gibibyte) &&
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

    void add(std::uint32_t action, std::initializer_list<int> calls)
    {
        for (const int call : calls) {
            m_isComplete = m_isComplete && seccomp_rule_add(m_filter, action, call, 0) == 0;
        }
    }
    /// For calls whose arguments meet all of @p conditions.
    void addIf(std::uint32_t action, int call, std::initializer_list<scmp_arg_cmp> conditions)
    {
        m_isComplete = m_isComplete && seccomp_rule_add_array(m_filter, action, call,
                                                              static_cast<unsigned>(conditions.size()),
                                                              conditions.begin()) == 0;
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
    filter.add(Allow, {SYS_read, SYS_write, SYS_pread64, SYS_pwrite64, SYS_readv, SYS_writev, SYS_lseek,
                       SYS_fstat, SYS_close, SYS_recvmsg, SYS_sendmsg, SYS_sendto, SYS_recvfrom});
    // Memory: the allocator's calls. Memory that can be executed is not needed once the libraries are loaded.
    filter.add(Allow, {SYS_munmap, SYS_mremap, SYS_madvise, SYS_brk});
    for (const int call : {SYS_mmap, SYS_mprotect}) {
        filter.addIf(Allow, call, {bits(2, PROT_EXEC, 0)});
        filter.addIf(Kill, call, {bits(2, PROT_EXEC, PROT_EXEC)});
    }
    // Threads: decoding uses all cores. Not clone3, whose flags a filter cannot see.
    filter.add(Allow, {SYS_futex, SYS_set_robust_list, SYS_rseq, SYS_rt_sigprocmask, SYS_rt_sigreturn,
                       SYS_sched_yield, SYS_sched_getaffinity, SYS_sched_getparam, SYS_sched_getscheduler,
                       SYS_gettid, SYS_getpid, SYS_exit, SYS_exit_group, SYS_restart_syscall});
    filter.addIf(Allow, SYS_clone, {bits(0, CLONE_THREAD, CLONE_THREAD)});
    filter.addIf(Kill, SYS_clone, {bits(0, CLONE_THREAD, 0)});
    // Clocks and random numbers: used inside the libraries.
    filter.add(Allow, {SYS_clock_gettime, SYS_clock_getres, SYS_gettimeofday, SYS_clock_nanosleep,
                       SYS_nanosleep, SYS_getrandom});
    // This process itself: the C library reads its limits, and a thumbnail lowers its priority.
    filter.addIf(Allow, SYS_prlimit64, {is(0, 0), is(2, 0)});
    filter.addIf(Allow, SYS_setpriority, {is(0, PRIO_PROCESS), is(1, 0)});
    // Files by name: the C library looks for some under /proc and /sys and does without. Nothing is created.
    filter.addIf(SCMP_ACT_ERRNO(ENOENT), SYS_openat, {bits(2, O_ACCMODE, O_RDONLY)});
    filter.addIf(Kill, SYS_openat, {bits(2, O_WRONLY, O_WRONLY)});
    filter.addIf(Kill, SYS_openat, {bits(2, O_RDWR, O_RDWR)});
    filter.add(Kill, {SYS_truncate, SYS_unlinkat, SYS_renameat, SYS_renameat2, SYS_linkat, SYS_symlinkat,
                      SYS_mkdirat, SYS_fchmod, SYS_fchmodat, SYS_fchown, SYS_fchownat, SYS_open_by_handle_at,
                      SYS_memfd_create});
    // Other processes: no decoder starts or touches one.
    filter.add(Kill, {SYS_execve, SYS_execveat, SCMP_SYS(fork), SCMP_SYS(vfork), SYS_ptrace,
                      SYS_process_vm_readv, SYS_process_vm_writev, SYS_kill, SYS_pidfd_send_signal});
    // Network: no decoder opens a connection.
    filter.add(Kill,
               {SYS_socket, SYS_socketpair, SYS_connect, SYS_bind, SYS_listen, SYS_accept, SYS_accept4});
    // Kernel interfaces: the usual ways out of a sandbox.
    filter.add(Kill, {SYS_mount, SYS_umount2, SYS_setns, SYS_unshare, SYS_pivot_root, SYS_chroot, SYS_bpf,
                      SYS_io_uring_setup, SYS_perf_event_open, SYS_keyctl, SYS_add_key, SYS_init_module,
                      SYS_finit_module, SYS_userfaultfd});
    return filter.load();
}

} // namespace

bool lockDown()
{
    return limitResources() && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && closeFileSystem() &&
           filterCalls();
}

} // namespace imageworker
