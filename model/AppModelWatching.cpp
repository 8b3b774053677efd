// Watching and scanning of AppModel: which files of the watched folder are new, and when they have settled.

#include "AppModel.h"
#include "FolderLook.h"
#include "FolderMonitor.h"
#include "JobScheduler.h"
#include "OpenPanel.h"
#include "PhotoFile.h"
#include "PhotoFileName.h"

#include <QSet>

using namespace std::chrono_literals;

namespace {

constexpr auto settleCheck = 850ms;
constexpr auto resumeDelay = 100ms;
constexpr auto pollingInterval = 10s;

} // namespace

void AppModel::startMonitoringFolder()
{
    m_isFolderLost = false;
    // Reports come on the monitor's thread; they end before the model does.
    m_monitorAvailable = m_services.folderMonitor->start(watchFolder(), [this] {
        QMetaObject::invokeMethod(
            this, [this] { scheduleScan(changeDebounce); }, Qt::QueuedConnection);
    });
    pollSilentFolder();
    if (!m_monitorAvailable) {
        setLastEventText(tr("Couldn’t watch %1").arg(PhotoFileName::shown(watchFolder().fileName())));
    }
}

QList<QUrl> AppModel::heicFiles(const QUrl &folder)
{
    return FolderListing::photos(folder).value_or(QList<QUrl>());
}

std::optional<FileSignature> AppModel::signature(const QUrl &file)
{
    return FileSignature::of(file);
}

void AppModel::seedKnownFiles()
{
    m_knownFiles.clear();
    m_candidates.clear();
    m_look.reset();
    const QList<QUrl> files = heicFiles(m_watchFolder);
    for (const QUrl &file : files) {
        if (const auto current = signature(file)) {
            m_knownFiles.insert(file.toLocalFile(), *current);
        }
    }
}

void AppModel::scheduleScan(std::chrono::milliseconds after)
{
    m_pendingScanTask = m_services.jobs->after(after, [this] {
        m_pendingScanTask.reset();
        scanForNewFiles();
    });
}

void AppModel::scanForNewFiles()
{
    if (!m_isWatching || m_look) {
        return;
    }
    if (!m_services.folderMonitor->mayMissChanges() && !m_isFolderLost) {
        scan(FolderListing::contents(m_watchFolder));
        return;
    }
    m_look = std::make_unique<FolderLook>(m_watchFolder, this, [this](const auto &contents) {
        m_look.reset();
        scan(contents);
    });
}

void AppModel::scan(const std::optional<FolderListing::Contents> &contents)
{
    if (!m_isWatching) {
        return;
    }
    const FolderMonitor &monitor = *m_services.folderMonitor;
    const bool isServed = monitor.mayMissChanges();
    m_isFolderLost |= m_monitorAvailable && (monitor.hasLostFolder() || (!contents && !isServed));
    if (m_isFolderLost) {
        m_knownFiles.clear();
        m_candidates.clear();
        if (contents) {
            returnToFolder(*contents);
        }
        pollSilentFolder();
        return;
    }
    if (!contents && isServed) {
        return; // may answer the next time: its photos are no new ones then
    }
    const FolderListing::Contents photos = contents.value_or(FolderListing::Contents());
    QSet<QString> present;
    for (const auto &photo : photos) {
        present.insert(photo.url.toLocalFile());
    }
    const auto isGone = [&present](const auto &entry) { return !present.contains(entry.key()); };
    m_knownFiles.removeIf(isGone);
    m_candidates.removeIf(isGone);

    QList<QUrl> settled;
    bool needsSettleCheck = false;
    for (const auto &[file, current] : photos) {
        const QString path = file.toLocalFile();
        if (m_processingPaths.contains(path)) {
            continue;
        }
        if (!current || m_knownFiles.value(path, FileSignature{.size = -1}) == *current) {
            continue;
        }
        const bool hasSettled = m_candidates.contains(path) && m_candidates.value(path) == *current;
        if (hasSettled && (isServed || !isBeingWritten(file))) {
            m_candidates.remove(path);
            settled.append(file);
        } else {
            m_candidates.insert(path, *current);
            needsSettleCheck = true;
        }
    }
    enqueue(settled);
    if (needsSettleCheck) {
        m_services.engine->prepare();
        scheduleScan(settleCheck);
    }
}

/// Watches the folder that has its path again. What it holds already counts as known.
void AppModel::returnToFolder(const FolderListing::Contents &contents)
{
    for (const auto &[file, current] : contents) {
        if (current) {
            m_knownFiles.insert(file.toLocalFile(), *current);
        }
    }
    startMonitoringFolder();
    scheduleScan(settleCheck); // for what came before the watch, or was mounted over the folder since
}

void AppModel::pollSilentFolder()
{
    m_pollTask.reset();
    if (!m_isWatching || (!m_isFolderLost && !m_services.folderMonitor->mayMissChanges())) {
        return;
    }
    m_pollTask = m_services.jobs->after(pollingInterval, [this] {
        if (!m_pendingScanTask) {
            scanForNewFiles();
        }
        pollSilentFolder();
    });
}

void AppModel::reactToWatching()
{
    pollSilentFolder();
    if (m_isWatching) {
        scheduleScan(resumeDelay);
    } else {
        m_pendingScanTask.reset();
        m_candidates.clear();
    }
}

void AppModel::chooseWatchFolder()
{
    m_services.openPanel->show({.choice = OpenPanelRequest::Choice::oneFolder,
                                .title = tr("Choose the folder where AirDrop saves photos"),
                                .prompt = tr("Watch this folder"),
                                .folder = watchFolder()},
                               [this](const QList<QUrl> &chosen) {
                                   if (!chosen.first().isLocalFile()) {
                                       return; // a folder of another machine, in a panel that offers them
                                   }
                                   setWatchFolder(chosen.first());
                                   seedKnownFiles();
                                   startMonitoringFolder();
                                   setLastEventText(
                                       tr("Watching %1").arg(PhotoFileName::shown(watchFolder().fileName())));
                               });
}

void AppModel::retryMonitoring()
{
    startMonitoringFolder();
    if (m_monitorAvailable && m_isWatching) {
        scheduleScan(resumeDelay);
    }
}

void AppModel::convertExistingFiles()
{
    const QList<QUrl> files = heicFiles(m_watchFolder);
    if (files.isEmpty()) {
        setLastEventText(
            tr("No HEIC photos found in %1").arg(PhotoFileName::shown(watchFolder().fileName())));
        return;
    }
    enqueue(files);
}

AppModel::MonitorTexts AppModel::monitorTexts() const
{
    if (!m_monitorAvailable) {
        return {tr("Folder unavailable"), tr("Check your watched folder, then retry."),
                QStringLiteral("exclamationmark.triangle.fill")};
    }
    if (m_isWatching) {
        return {tr("Auto-convert: On"),
                tr("Watching %1 for new HEIC photos.").arg(PhotoFileName::shown(watchFolder().fileName())),
                QStringLiteral("checkmark.circle.fill")};
    }
    return {tr("Auto-convert: Paused"), tr("New arrivals won’t convert until you resume."),
            QStringLiteral("pause.circle.fill")};
}
