#pragma once

#include "JobScheduler.h"

#include <algorithm>
#include <map>

/// A scheduler whose time the test moves by hand.
class ManualScheduler : public JobScheduler
{
public:
    std::unique_ptr<ScheduledJob> after(std::chrono::milliseconds delay, std::function<void()> job) override
    {
        const auto shared = std::make_shared<Job>(std::move(job));
        m_jobs.emplace(m_now + delay, shared);
        return std::make_unique<Handle>(shared);
    }

    /// Moves time on and runs, in order, what falls due on the way, also what that schedules.
    void advance(std::chrono::milliseconds by)
    {
        const auto until = m_now + by;
        while (!m_jobs.empty() && m_jobs.begin()->first <= until) {
            const auto next = m_jobs.extract(m_jobs.begin());
            m_now = next.key();
            if (const auto job = next.mapped().lock()) {
                (*job)();
            }
        }
        m_now = until;
    }

    qsizetype waitingJobs() const
    {
        return std::count_if(m_jobs.begin(), m_jobs.end(),
                             [](const auto &each) { return !each.second.expired(); });
    }

private:
    using Job = std::function<void()>;

    struct Handle : ScheduledJob
    {
        explicit Handle(std::shared_ptr<Job> scheduled)
            : job(std::move(scheduled))
        {}
        std::shared_ptr<Job> job;
    };

    std::multimap<std::chrono::milliseconds, std::weak_ptr<Job>> m_jobs; ///< by due time
    std::chrono::milliseconds m_now{};
};
