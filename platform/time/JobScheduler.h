#pragma once

#include <chrono>
#include <functional>
#include <memory>

/// A job that waits for its time; destroying it cancels it, also from within the job itself.
class ScheduledJob
{
public:
    virtual ~ScheduledJob() = default;
};

/// Runs jobs later, on the thread that scheduled them, by the monotonic clock.
class JobScheduler
{
public:
    virtual ~JobScheduler() = default;
    [[nodiscard]] virtual std::unique_ptr<ScheduledJob> after(std::chrono::milliseconds delay,
                                                              std::function<void()> job) = 0;

    /// One that needs a running event loop.
    static std::unique_ptr<JobScheduler> create();
};
