#pragma once

#include <QByteArray>

#include <functional>
#include <memory>
#include <thread>

/// One kernel watch on one folder, with the thread that delivers its reports. Sees changes of the folder
/// itself only: entries that come, go or change their names, its own attributes, its renaming and its
/// deletion.
class FolderWatch
{
public:
    /// None when the folder does not exist or may not be read.
    static std::unique_ptr<FolderWatch> open(const QByteArray &path, std::function<void()> onChange);

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
    static void deliverReports(const State &state);

    std::shared_ptr<State> m_state;
    std::thread m_thread;
};
