#include "JobScheduler.h"

#include <QTimer>

namespace {

class TimerJob : public ScheduledJob
{
public:
    TimerJob(std::chrono::milliseconds delay, std::function<void()> job)
    {
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [job = std::move(job)] {
            const auto kept = job; // the job may destroy its own handle, and this closure with it
            kept();
        });
        m_timer.start(delay);
    }

private:
    QTimer m_timer;
};

class TimerScheduler : public JobScheduler
{
public:
    std::unique_ptr<ScheduledJob> after(std::chrono::milliseconds delay, std::function<void()> job) override
    {
        return std::make_unique<TimerJob>(delay, std::move(job));
    }
};

} // namespace

std::unique_ptr<JobScheduler> JobScheduler::create()
{
    return std::make_unique<TimerScheduler>();
}
