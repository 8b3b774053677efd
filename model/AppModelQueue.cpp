// The conversion queue of AppModel: from accepted files to history entries, and the status line on the way.

#include "AppModel.h"
#include "ConversionEngine.h"
#include "JobScheduler.h"
#include "ModelTexts.h"
#include "NotificationManager.h"
#include "OpenPanel.h"
#include "PhotoFile.h"
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
    std::copy_if(urls.begin(), urls.end(), std::back_inserter(photos), isPhotoFile);
    if (photos.isEmpty()) {
        setLastEventText(ModelTexts::dropPhotosHere());
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
        m_processingPaths.insert(url.toLocalFile());
        accepted.append(
            ConversionItem::queuedFor(url, ReferenceDate::fromSystemTime(m_services.clock->now())));
        m_items.prepend(accepted.last());
    }
    if (accepted.isEmpty()) {
        return;
    }
    trimAndSaveItems(); // once for all of a burst: each time may wait for the disk
    setLastEventText(ModelTexts::landed(accepted.last().sourceName));
    showStatus(ConversionStatus::queued);
    m_services.engine->prepare();
    QMetaObject::invokeMethod(
        this, [this, accepted, settings = m_settings] { startConversions(accepted, settings); },
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
        m_services.engine->convert(
            each.sourceURL, settings, this,
            [this, id = each.id, sourceURL = each.sourceURL, settings](const ConversionOutcome &outcome) {
                if (outcome) {
                    finishConversion(id, sourceURL, settings, outcome->outputURL);
                } else {
                    failConversion(id, sourceURL, description(outcome.error()));
                }
            });
    }
}

void AppModel::finishConversion(const QUuid &id, const QUrl &sourceURL, const ConversionSettings &settings,
                                const QUrl &outputURL)
{
    if (ConversionItem *item = find(id)) {
        item->status = ConversionStatus::ready;
        item->outputURL = outputURL;
        item->outputName = outputURL.fileName();
        saveItems();
        Q_EMIT itemsChanged();
    }
    setLastEventText(ModelTexts::ready(outputURL.fileName()));
    endConversion(sourceURL, ConversionStatus::ready, readyShownFor);
    if (settings.notificationsEnabled) {
        m_services.notifications->notifyConversionFinished(outputURL);
    }
}

void AppModel::failConversion(const QUuid &id, const QUrl &sourceURL, const QString &errorMessage)
{
    if (ConversionItem *item = find(id)) {
        item->status = ConversionStatus::failed;
        item->errorMessage = errorMessage;
        saveItems();
        Q_EMIT itemsChanged();
    }
    setLastEventText(ModelTexts::couldNotConvert(sourceURL.fileName()));
    endConversion(sourceURL, ConversionStatus::failed, failureShownFor);
}

void AppModel::endConversion(const QUrl &sourceURL, ConversionStatus outcome, std::chrono::seconds shownFor)
{
    // Known from now on, so that scans leave the file alone until it changes; one that was moved away has no
    // signature.
    if (const auto current = signature(sourceURL)) {
        m_knownFiles.insert(sourceURL.toLocalFile(), *current);
    }
    if (isBusy()) {
        showStatus(ConversionStatus::converting);
    } else {
        showStatus(outcome, shownFor);
    }
    m_processingPaths.remove(sourceURL.toLocalFile());
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
    setActiveStatus(status);
    if (clearAfter) {
        m_statusClearTask = m_services.jobs->after(*clearAfter, [this] {
            setActiveStatus(std::nullopt);
            setLastEventText(ModelTexts::waiting());
        });
    }
}

void AppModel::setActiveStatus(std::optional<ConversionStatus> status)
{
    m_activeStatus = status;
    Q_EMIT activeStatusChanged();
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
                                .prompt = tr("Convert photos")},
                               [this](const QList<QUrl> &photos) { convertManually(photos); });
}

void AppModel::clearHistory()
{
    setItems({});
    saveItems();
    setLastEventText(ModelTexts::historyCleared());
}
