#include "LockDown.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sched.h>
#include <seccomp.h>
#include <span>
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

/// Fixed and generous: a limit worked out from what is free today would refuse honest photos tomorrow.
bool limitResources()
{
    constexpr rlim_t Gibibyte = 1ULL << 30;
    constexpr rlim_t ProcessorSeconds = 1800;
    constexpr rlim_t Descriptors = 32;
    ::signal(SIGXFSZ, SIG_IGN); // a copy that grows too large is a failed write, not a death
    return limit(RLIMIT_AS, 3 * Gibibyte) && limit(RLIMIT_FSIZE, 2 * Gibibyte) &&
           limit(RLIMIT_CPU, ProcessorSeconds) && limit(RLIMIT_NOFILE, Descriptors) && limit(RLIMIT_CORE, 0);
}

/// Landlock with every right of its first version handled and none granted. A kernel without it leaves the
/// rest to the filter of calls.
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

// What each group of calls is for. Everything that stands in none of them answers "no such call", so that a
// newer C library falls back to an older call; what only an attacker would do ends the process.

constexpr std::array Transfer = {SYS_read,    SYS_write,  SYS_pread64, SYS_pwrite64, SYS_readv,
                                 SYS_writev,  SYS_lseek,  SYS_fstat,   SYS_close,    SYS_recvmsg,
                                 SYS_sendmsg, SYS_sendto, SYS_recvfrom};
constexpr std::array Memory = {SYS_munmap, SYS_mremap, SYS_madvise, SYS_brk};
constexpr std::array Threads = {SYS_futex,
                                SYS_set_robust_list,
                                SYS_rseq,
                                SYS_rt_sigprocmask,
                                SYS_rt_sigreturn,
                                SYS_sched_yield,
                                SYS_sched_getaffinity,
                                SYS_sched_getparam,
                                SYS_sched_getscheduler,
                                SYS_gettid,
                                SYS_getpid,
                                SYS_exit,
                                SYS_exit_group,
                                SYS_restart_syscall};
constexpr std::array Clocks = {SYS_clock_gettime,   SYS_clock_getres, SYS_gettimeofday,
                               SYS_clock_nanosleep, SYS_nanosleep,    SYS_getrandom};
constexpr std::array Hostile = {SYS_execve,
                                SYS_execveat,
                                SYS_fork,
                                SYS_vfork,
                                SYS_ptrace,
                                SYS_process_vm_readv,
                                SYS_process_vm_writev,
                                SYS_socket,
                                SYS_socketpair,
                                SYS_connect,
                                SYS_bind,
                                SYS_listen,
                                SYS_accept,
                                SYS_accept4,
                                SYS_creat,
                                SYS_truncate,
                                SYS_unlink,
                                SYS_unlinkat,
                                SYS_rename,
                                SYS_renameat,
                                SYS_renameat2,
                                SYS_link,
                                SYS_linkat,
                                SYS_symlink,
                                SYS_symlinkat,
                                SYS_mkdir,
                                SYS_mkdirat,
                                SYS_chmod,
                                SYS_fchmod,
                                SYS_fchmodat,
                                SYS_chown,
                                SYS_fchown,
                                SYS_fchownat,
                                SYS_mount,
                                SYS_umount2,
                                SYS_setns,
                                SYS_unshare,
                                SYS_pivot_root,
                                SYS_chroot,
                                SYS_bpf,
                                SYS_io_uring_setup,
                                SYS_perf_event_open,
                                SYS_keyctl,
                                SYS_add_key,
                                SYS_kill,
                                SYS_pidfd_send_signal,
                                SYS_open_by_handle_at,
                                SYS_memfd_create,
                                SYS_init_module,
                                SYS_finit_module,
                                SYS_userfaultfd};

/// The list of allowed calls while it is being made. A failure is kept; the filter is then never loaded.
class CallFilter
{
public:
    CallFilter()
        : m_filter(seccomp_init(SCMP_ACT_ERRNO(ENOSYS)))
        , m_sound(m_filter != nullptr)
    {}
    ~CallFilter() { seccomp_release(m_filter); }
    CallFilter(const CallFilter &) = delete;
    CallFilter &operator=(const CallFilter &) = delete;

    void add(std::uint32_t action, std::span<const int> calls)
    {
        for (const int call : calls) {
            m_sound = m_sound && seccomp_rule_add(m_filter, action, call, 0) == 0;
        }
    }
    /// For calls of which all of @p conditions are true.
    template<typename... Conditions>
    void add(std::uint32_t action, int call, Conditions... conditions)
    {
        const std::array<scmp_arg_cmp, sizeof...(conditions)> all = {conditions...};
        m_sound = m_sound && seccomp_rule_add_array(m_filter, action, call, all.size(), all.data()) == 0;
    }
    bool load() { return m_sound && seccomp_load(m_filter) == 0; }

private:
    scmp_filter_ctx m_filter;
    bool m_sound;
};

/// True for a call whose argument number @p argument has @p value in the bits of @p mask.
scmp_arg_cmp bits(unsigned argument, scmp_datum_t mask, scmp_datum_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

scmp_arg_cmp is(unsigned argument, scmp_datum_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

scmp_arg_cmp isZero(unsigned argument)
{
    return is(argument, 0);
}

bool filterCalls()
{
    CallFilter filter;
    for (const std::span<const int> group : {std::span<const int>(Transfer), std::span<const int>(Memory),
                                             std::span<const int>(Threads), std::span<const int>(Clocks)}) {
        filter.add(SCMP_ACT_ALLOW, group);
    }
    filter.add(SCMP_ACT_KILL_PROCESS, Hostile);
    // Memory that can be run is never asked for once the libraries are loaded.
    const auto withoutExecution = bits(2, PROT_EXEC, 0);
    const auto withExecution = bits(2, PROT_EXEC, PROT_EXEC);
    for (const int call : {SYS_mmap, SYS_mprotect}) {
        filter.add(SCMP_ACT_ALLOW, call, withoutExecution);
        filter.add(SCMP_ACT_KILL_PROCESS, call, withExecution);
    }
    // Threads, but no processes. The newer clone3 hides its flags from the filter and answers "no such call".
    filter.add(SCMP_ACT_ALLOW, SYS_clone, bits(0, CLONE_THREAD, CLONE_THREAD));
    filter.add(SCMP_ACT_KILL_PROCESS, SYS_clone, bits(0, CLONE_THREAD, 0));
    // The C library may look for files under /proc or /sys and do without; opening for writing is another
    // matter.
    filter.add(SCMP_ACT_ERRNO(ENOENT), SYS_openat, bits(2, O_ACCMODE, O_RDONLY));
    filter.add(SCMP_ACT_KILL_PROCESS, SYS_openat, bits(2, O_WRONLY, O_WRONLY));
    filter.add(SCMP_ACT_KILL_PROCESS, SYS_openat, bits(2, O_RDWR, O_RDWR));
    filter.add(SCMP_ACT_ERRNO(ENOENT), SYS_open, bits(1, O_ACCMODE, O_RDONLY));
    filter.add(SCMP_ACT_KILL_PROCESS, SYS_open, bits(1, O_WRONLY, O_WRONLY));
    filter.add(SCMP_ACT_KILL_PROCESS, SYS_open, bits(1, O_RDWR, O_RDWR));
    // Of limits only those of this process itself may be asked for, and only asked for.
    filter.add(SCMP_ACT_ALLOW, SYS_prlimit64, isZero(0), isZero(2));
    // A thumbnail's work steps back behind all other, by itself alone.
    filter.add(SCMP_ACT_ALLOW, SYS_setpriority, is(0, PRIO_PROCESS), isZero(1));
    return filter.load();
}

} // namespace

bool tieToParent(int parent)
{
    return ::prctl(PR_SET_PDEATHSIG, SIGKILL) == 0 && ::getppid() == parent;
}

bool lockDown()
{
    return limitResources() && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && closeFileSystem() &&
           filterCalls();
}

} // namespace imageworker
