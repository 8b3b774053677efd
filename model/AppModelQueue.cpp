// The conversion queue of AppModel: accepted files become history entries, and the status line follows.

#include "AppModel.h"
#include "JobScheduler.h"
#include "NotificationManager.h"
#include "OpenPanel.h"
#include "PhotoFile.h"
#include "PhotoFileName.h"
#include "WallClock.h"
#include "Workspace.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr qsizetype itemsLimit = 20;
constexpr auto readyShownFor = 4s;
constexpr auto failureShownFor = 6s;

} // namespace

void AppModel::convertManually(const QList<QUrl> &urls)
{
    QList<QUrl> photos;
    for (const QUrl &url : urls) {
        if (isPhotoFile(url)) {
            photos.append(withoutOwnHost(url));
        }
    }
    if (photos.isEmpty()) {
        setLastEventText(tr("Drop HEIC or HEIF photos here"));
        return;
    }
    enqueue(photos);
}

void AppModel::enqueue(const QList<QUrl> &urls)
{
    QList<ConversionItem> accepted;
    for (const QUrl &url : urls) {
        if (m_processingPaths.contains(url.toLocalFile())) {
            continue;
        }
        m_processingPaths.insert(url.toLocalFile(), signature(url));
        accepted.append(
            ConversionItem::queuedFor(url, ReferenceDate::fromSystemTime(m_services.clock->now())));
        m_items.prepend(accepted.last());
    }
    if (accepted.isEmpty()) {
        return;
    }
    trimAndSaveItems(); // once for all of a burst: each time may wait for the disk
    setLastEventText(tr("%1 landed").arg(PhotoFileName::shown(accepted.last().sourceName)));
    showStatus(ConversionStatus::queued);
    m_services.engine->prepare();
    QMetaObject::invokeMethod(
        this, [this, accepted, settings = settings()] { startConversions(accepted, settings); },
        Qt::QueuedConnection);
}

void AppModel::startConversions(const QList<ConversionItem> &accepted, const ConversionSettings &settings)
{
    for (const ConversionItem &each : accepted) {
        if (ConversionItem *item = find(each.id)) {
            item->status = ConversionStatus::converting;
        }
    }
    saveItems();
    Q_EMIT itemsChanged();
    showStatus(ConversionStatus::converting);
    for (const ConversionItem &each : accepted) {
        m_services.engine->convert(each.sourceURL, settings, this,
                                   [this, each, settings](const ConversionOutcome &outcome) {
                                       endConversion(each, settings, outcome);
                                   });
    }
}

void AppModel::endConversion(const ConversionItem &accepted, const ConversionSettings &settings,
                             const ConversionOutcome &outcome)
{
    if (ConversionItem *item = find(accepted.id)) {
        if (outcome) {
            item->status = ConversionStatus::ready;
            item->outputURL = outcome->outputURL;
            item->outputName = outcome->outputURL.fileName();
        } else {
            item->status = ConversionStatus::failed;
            item->errorMessage = description(outcome.error());
        }
        Q_EMIT itemsChanged();
    }
    // Known from now on, so that scans leave the file alone until it changes. A file that was moved away has
    // no signature.
    const QString path = accepted.sourceURL.toLocalFile();
    const auto attempted = m_processingPaths.take(path);
    if (const auto current = signature(accepted.sourceURL)) {
        // One that changed meanwhile may be whole only now.
        m_knownFiles.insert(path, attempted.value_or(*current));
        if (attempted && *attempted != *current) {
            scheduleScan(changeDebounce);
        }
    }
    setLastEventText(outcome ? tr("Ready: %1").arg(PhotoFileName::shown(outcome->outputURL.fileName()))
                             : tr("Couldn’t convert %1").arg(PhotoFileName::shown(accepted.sourceName)));
    if (isBusy()) {
        showStatus(ConversionStatus::converting);
    } else if (outcome) {
        showStatus(ConversionStatus::ready, readyShownFor);
    } else {
        showStatus(ConversionStatus::failed, failureShownFor);
    }
    if (outcome && settings.notificationsEnabled) {
        m_services.notifications->notifyConversionFinished(outcome->outputURL);
    }
    saveItems();
}

ConversionItem *AppModel::find(const QUuid &id)
{
    const auto found = std::find_if(m_items.begin(), m_items.end(),
                                    [&id](const ConversionItem &item) { return item.id == id; });
    return found == m_items.end() ? nullptr : &*found;
}

void AppModel::trimAndSaveItems()
{
    if (m_items.size() > itemsLimit) {
        m_items.resize(itemsLimit);
    }
    saveItems();
    Q_EMIT itemsChanged();
}

void AppModel::showStatus(ConversionStatus status, std::optional<std::chrono::milliseconds> clearAfter)
{
    m_statusClearTask.reset();
    m_activeStatus = status;
    if (clearAfter) {
        m_statusClearTask = m_services.jobs->after(*clearAfter, [this] { clearStatus(); });
    }
}

void AppModel::clearStatus()
{
    m_activeStatus = std::nullopt;
    setLastEventText(tr("Waiting for your next AirDrop"));
}

bool AppModel::isBusy() const
{
    return std::any_of(m_items.begin(), m_items.end(), [](const ConversionItem &item) {
        return item.status == ConversionStatus::queued || item.status == ConversionStatus::converting;
    });
}

int AppModel::readyCount() const
{
    return static_cast<int>(std::count_if(m_items.begin(), m_items.end(), [](const ConversionItem &item) {
        return item.status == ConversionStatus::ready;
    }));
}

void AppModel::reveal(const ConversionItem &item)
{
    if (item.outputURL) {
        m_services.workspace->reveal(*item.outputURL, QString());
    }
}

void AppModel::choosePhotos()
{
    m_services.openPanel->show({.choice = OpenPanelRequest::Choice::photoFiles,
                                .title = tr("Choose HEIC photos"),
                                .prompt = tr("Convert photos"),
                                .folder = watchFolder()},
                               [this](const QList<QUrl> &photos) { convertManually(photos); });
}

void AppModel::clearHistory()
{
    setItems({});
    saveItems();
    setLastEventText(tr("History cleared"));
}
