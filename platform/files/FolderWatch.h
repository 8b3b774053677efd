#pragma once

#include <QByteArray>

#include <functional>
#include <memory>
#include <system_error>
#include <thread>
#include <tl/expected.hpp>

/// One kernel watch on one folder, with the thread that delivers its reports once it has been resumed. Sees
/// changes of the folder itself only: entries that come, go or change their names, its own attributes, its
/// renaming and its deletion.
class FolderWatch
{
public:
    /// A watch that is still idle. `std::errc::resource_unavailable_try_again` for a folder that could be
    /// read but not watched, because all watches of the system or of the user are taken; other errors when it
    /// does not exist or may not be read.
    static tl::expected<std::unique_ptr<FolderWatch>, std::error_code> open(const QByteArray &path,
                                                                            std::function<void()> onChange);

    /// Starts delivering, also what has happened since the watch was opened. Called once.
    void resume();

    /// The watched folder was deleted, renamed or unmounted: nothing that now has its path is watched.
    bool hasLostFolder() const;

    /// Whether the kernel sees every change of the folder. On file systems of other machines, and on those
    /// that a program serves, it sees only the changes that are made through it here.
    static bool seesEveryChange(const QByteArray &path);

    /// Waits for a report that is being delivered, and closes every descriptor. May be called from within a
    /// report.
    ~FolderWatch();
    FolderWatch(const FolderWatch &) = delete;
    FolderWatch &operator=(const FolderWatch &) = delete;

private:
    struct State;

    explicit FolderWatch(std::shared_ptr<State> state);
    static void deliverReports(State &state);

    std::shared_ptr<State> m_state;
    std::thread m_thread;
};
