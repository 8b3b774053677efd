#include "FolderMonitor.h"

#include "FolderWatch.h"

#include <QFile>

FolderMonitor::FolderMonitor() = default;

FolderMonitor::~FolderMonitor()
{
    FolderMonitor::stop();
}

bool FolderMonitor::start(const QUrl &at, std::function<void()> onChange)
{
    stop();
    const QByteArray path = QFile::encodeName(at.toLocalFile());
    auto source = FolderWatch::open(path, std::move(onChange));
    if (!source && source.error() != std::errc::resource_unavailable_try_again) {
        return false;
    }
    const std::lock_guard guard(m_lock);
    m_mayMissChanges = !source || !FolderWatch::seesEveryChange(path);
    if (source) {
        m_source = std::move(*source);
        m_source->resume(); // not before it is stored: its first report may stop it
    }
    return true;
}

void FolderMonitor::stop()
{
    std::unique_ptr<FolderWatch> source;
    {
        const std::lock_guard guard(m_lock);
        m_mayMissChanges = false;
        source = std::move(m_source);
    }
    // Ends here, outside the lock: ending waits for a report that is being delivered.
}

bool FolderMonitor::hasLostFolder() const
{
    const std::lock_guard guard(m_lock);
    return m_source && m_source->hasLostFolder();
}

bool FolderMonitor::mayMissChanges() const
{
    const std::lock_guard guard(m_lock);
    return m_mayMissChanges;
}
