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
    if (!source) {
        return false;
    }
    m_mayMissChanges = !FolderWatch::seesEveryChange(path);
    const std::lock_guard guard(m_lock);
    m_source = std::move(source);
    return true;
}

void FolderMonitor::stop()
{
    m_mayMissChanges = false;
    std::unique_ptr<FolderWatch> source;
    {
        const std::lock_guard guard(m_lock);
        source = std::move(m_source);
    }
    // Ends here, outside the lock: ending waits for a report that is being delivered.
}
