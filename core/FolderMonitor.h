#pragma once

#include <QUrl>

#include <functional>
#include <memory>
#include <mutex>

class FolderWatch;

/// Tells its owner that the watched folder itself changed: an entry was added, removed or renamed in it, its
/// attributes changed, or it was renamed or deleted. It neither says what changed nor looks into files and
/// subfolders. Watches at most one folder at a time; a renamed or deleted folder stays the watched one until
/// the owner stops or restarts.
class FolderMonitor
{
public:
    FolderMonitor();
    virtual ~FolderMonitor();
    FolderMonitor(const FolderMonitor &) = delete;
    FolderMonitor &operator=(const FolderMonitor &) = delete;

    /// Ends any earlier watch, then watches the folder `at`. False when it cannot be opened; nothing is
    /// watched then. A folder that the kernel has no watch left for counts as watched, but may miss changes.
    /// `onChange` is called on a background thread of the watch; reports that arrive while it
    /// runs become one call.
    virtual bool start(const QUrl &at, std::function<void()> onChange);

    virtual void stop();

    /// Whether the watched folder may change without a report, as folders of other machines do.
    virtual bool mayMissChanges() const;

private:
    mutable std::mutex m_lock; ///< guards the two below
    std::unique_ptr<FolderWatch> m_source;
    bool m_mayMissChanges = false;
};
