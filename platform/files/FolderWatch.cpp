#include "FolderWatch.h"

#include "FileDescriptor.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <linux/magic.h>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <sys/vfs.h>

namespace {

constexpr std::size_t bufferLength = 16384; // bytes; a burst in one reading
constexpr std::uint32_t entryChanges = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
constexpr std::uint32_t folderChanges = IN_ATTRIB | IN_MOVE_SELF | IN_DELETE_SELF;

constexpr std::uint32_t virtualBoxShare = 0x786F4256; // the kernel's fs/vboxsf/super.c; in no header

constexpr std::array<std::uint32_t, 11> servedFileSystems = {
    NFS_SUPER_MAGIC, SMB_SUPER_MAGIC, SMB2_SUPER_MAGIC, CIFS_SUPER_MAGIC, FUSE_SUPER_MAGIC, V9FS_MAGIC,
    AFS_SUPER_MAGIC, AFS_FS_MAGIC,    CODA_SUPER_MAGIC, CEPH_SUPER_MAGIC, virtualBoxShare};

/// The last system call's error; the same one for every limit on files and watches.
std::error_code lastError()
{
    const bool isLimit = errno == EMFILE || errno == ENFILE || errno == ENOSPC || errno == ENOMEM;
    return {isLimit ? EAGAIN : errno, std::generic_category()};
}

/// IN_ATTRIB is also sent for the folder's entries; those carry a name, the folder itself does not.
bool concernsFolder(const inotify_event &event)
{
    return (event.mask & (entryChanges | IN_MOVE_SELF | IN_DELETE_SELF | IN_UNMOUNT | IN_Q_OVERFLOW)) != 0 ||
           ((event.mask & IN_ATTRIB) != 0 && event.len == 0);
}

struct Changes
{
    bool concernFolder = false;
    bool folderIsLost = false; ///< its path no longer leads to it
};

/// Takes everything that waits in the queue.
Changes drain(const FileDescriptor &queue)
{
    alignas(inotify_event) std::array<char, bufferLength> buffer;
    Changes changes;
    for (;;) {
        const ssize_t length = ::read(queue.number(), buffer.data(), buffer.size());
        if (length < 0 && errno == EINTR) {
            continue;
        }
        if (length <= 0) {
            return changes;
        }
        for (std::size_t offset = 0; offset < static_cast<std::size_t>(length);) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + offset);
            changes.concernFolder |= concernsFolder(*event);
            changes.folderIsLost |= (event->mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT)) != 0;
            offset += sizeof(inotify_event) + event->len;
        }
    }
}

} // namespace

struct FolderWatch::State
{
    FileDescriptor queue;
    FileDescriptor ending;
    std::function<void()> onChange;
    std::atomic<bool> hasLostFolder = false;
    bool hasEndedItself = false; ///< from within a report, which was the last one then
};

tl::expected<std::unique_ptr<FolderWatch>, std::error_code> FolderWatch::open(const QByteArray &path,
                                                                              std::function<void()> onChange)
{
    // The slash: a folder, and nothing else, may be read by this path.
    if (::access((path + '/').constData(), R_OK) != 0) {
        return tl::unexpected(lastError());
    }
    FileDescriptor queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    FileDescriptor ending(::eventfd(0, EFD_CLOEXEC));
    if (!queue.isOpen() || !ending.isOpen() ||
        ::inotify_add_watch(queue.number(), path.constData(), entryChanges | folderChanges | IN_ONLYDIR) <
            0) {
        return tl::unexpected(lastError());
    }
    auto state = std::make_shared<State>();
    state->queue = std::move(queue);
    state->ending = std::move(ending);
    state->onChange = std::move(onChange);
    return std::unique_ptr<FolderWatch>(new FolderWatch(std::move(state)));
}

bool FolderWatch::hasLostFolder() const
{
    return m_state->hasLostFolder;
}

bool FolderWatch::seesEveryChange(const QByteArray &path)
{
    struct statfs fileSystem = {};
    return ::statfs(path.constData(), &fileSystem) != 0 ||
           std::count(servedFileSystems.begin(), servedFileSystems.end(),
                      static_cast<std::uint32_t>(fileSystem.f_type)) == 0;
}

FolderWatch::FolderWatch(std::shared_ptr<State> state)
    : m_state(std::move(state))
{}

void FolderWatch::resume()
{
    m_thread = std::thread([state = m_state] { deliverReports(*state); });
    ::pthread_setname_np(m_thread.native_handle(), "folder-monitor");
}

FolderWatch::~FolderWatch()
{
    ::eventfd_write(m_state->ending.number(), 1);
    if (m_thread.get_id() == std::this_thread::get_id()) {
        m_state->hasEndedItself = true;
        m_thread.detach(); // called from within a report: the thread ends, and closes, by itself
    } else if (m_thread.joinable()) {
        m_thread.join();
    }
}

void FolderWatch::deliverReports(State &state)
{
    std::array<pollfd, 2> waiting{{{.fd = state.queue.number(), .events = POLLIN, .revents = 0},
                                   {.fd = state.ending.number(), .events = POLLIN, .revents = 0}}};
    for (;;) {
        if (::poll(waiting.data(), waiting.size(), -1) < 0) {
            if (errno == EINTR) {
                continue;
            }
            return;
        }
        const Changes changes = drain(state.queue);
        if (changes.folderIsLost) {
            state.hasLostFolder = true;
        }
        if (changes.concernFolder) {
            state.onChange();
        }
        if (state.hasEndedItself || waiting[1].revents != 0) {
            return;
        }
    }
}
