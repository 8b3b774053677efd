#pragma once

#include <QUrl>

#include <functional>
#include <memory>
#include <mutex>

class FolderWatch;

/// Reports that the watched folder itself changed: an entry was added, removed or renamed, its attributes
/// changed, or it was renamed or deleted. Does not say what changed, and does not watch the contents of files
/// and subfolders. Watches at most one folder at a time. A renamed folder stays the watched one.
class FolderMonitor
{
public:
    FolderMonitor();
    virtual ~FolderMonitor();
    FolderMonitor(const FolderMonitor &) = delete;
    FolderMonitor &operator=(const FolderMonitor &) = delete;

    /// Ends any earlier watch, then watches the folder `at`. False when it cannot be opened; then nothing is
    /// watched. When the kernel has no watch left the folder counts as watched, and may miss changes.
    /// `onChange` is called on the watch's own thread. Changes that come while it runs become one call.
    virtual bool start(const QUrl &at, std::function<void()> onChange);

    virtual void stop();

    /// The watched folder may change without a report, as folders of other machines do.
    virtual bool mayMissChanges() const;

    /// The watched folder was deleted, renamed or unmounted since `start`: what its path leads to now, if
    /// anything, is not watched.
    virtual bool hasLostFolder() const;

private:
    mutable std::mutex m_lock; ///< guards the two below
    std::unique_ptr<FolderWatch> m_source;
    bool m_mayMissChanges = false;
};
