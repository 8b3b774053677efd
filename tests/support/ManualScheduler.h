#pragma once

#include "JobScheduler.h"

#include <map>

/// A scheduler whose time the test moves by hand.
class ManualScheduler : public JobScheduler
{
public:
    std::unique_ptr<ScheduledJob> after(std::chrono::milliseconds delay, std::function<void()> job) override;

    /// Moves time on and runs, in order, what falls due on the way, also what that schedules.
    void advance(std::chrono::milliseconds by);
    int waitingJobs() const { return static_cast<int>(m_jobs.size()); }

private:
    class Handle;
    using Key = std::pair<std::chrono::milliseconds, int>; // due time, then the order of scheduling

    std::map<Key, std::function<void()>> m_jobs;
    std::chrono::milliseconds m_now{};
    int m_scheduled = 0;
};
