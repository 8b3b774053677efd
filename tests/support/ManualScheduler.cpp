#include "ManualScheduler.h"

class ManualScheduler::Handle : public ScheduledJob
{
public:
    Handle(ManualScheduler &scheduler, Key key)
        : m_scheduler(scheduler)
        , m_key(key)
    {}
    ~Handle() override { m_scheduler.m_jobs.erase(m_key); }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

private:
    ManualScheduler &m_scheduler;
    Key m_key;
};

std::unique_ptr<ScheduledJob> ManualScheduler::after(std::chrono::milliseconds delay,
                                                     std::function<void()> job)
{
    const Key key{m_now + delay, m_scheduled++};
    m_jobs.emplace(key, std::move(job));
    return std::make_unique<Handle>(*this, key);
}

void ManualScheduler::advance(std::chrono::milliseconds by)
{
    const auto until = m_now + by;
    while (!m_jobs.empty() && m_jobs.begin()->first.first <= until) {
        auto next = m_jobs.extract(m_jobs.begin());
        m_now = next.key().first;
        next.mapped()();
    }
    m_now = until;
}
