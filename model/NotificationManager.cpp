#include "NotificationManager.h"

#include "NotificationCenter.h"
#include "PhotoFileName.h"
#include "ThumbnailStore.h"
#include "Workspace.h"

#include <QUuid>

using namespace std::chrono_literals;

namespace {

constexpr auto announceDelay = 250ms;

const QString showActionIdentifier = QStringLiteral("LUMAPORT_SHOW_IN_FINDER");
const QString outputPathKey = QStringLiteral("outputPath");

} // namespace

NotificationManager &NotificationManager::shared()
{
    static NotificationManager manager(NotificationCenter::create(), Workspace::create());
    return manager;
}

NotificationManager::NotificationManager(std::shared_ptr<NotificationCenter> center,
                                         std::shared_ptr<Workspace> workspace)
    : m_center(std::move(center))
    , m_workspace(std::move(workspace))
{}

NotificationManager::~NotificationManager() = default;

void NotificationManager::configure()
{
    m_center->onResponse([this](const NotificationResponse &response) { didReceive(response); });
}

void NotificationManager::notifyConversionFinished(const QUrl &outputURL)
{
    const QString identifier =
        QStringLiteral("lumaport-ready-") + QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    m_center->add({.identifier = identifier,
                   .title = tr("Photo landed ready"),
                   .subtitle = PhotoFileName::shown(outputURL.fileName()),
                   .body = tr("Converted locally. Click to reveal it in Finder."),
                   .categoryIdentifier = QStringLiteral("LUMAPORT_CONVERSION_READY"),
                   .action = {.identifier = showActionIdentifier, .title = tr("Show in Finder")},
                   .payload = {{outputPathKey, outputURL.toLocalFile()}},
                   .soundName = QStringLiteral("LumaportArrival.wav"),
                   .delay = announceDelay});
    auto picture = ThumbnailStore::shared().image(outputURL, [this, identifier](const QImage &image) {
        if (!image.isNull()) {
            m_center->setImage(identifier, image);
        }
        m_pictures.erase(identifier);
    });
    if (picture) {
        m_pictures.emplace(identifier, std::move(picture));
    }
}

void NotificationManager::notifyStillWatching()
{
    m_center->add({.identifier = QStringLiteral("lumaport-still-watching"),
                   .title = tr("Lumaport goes on watching"),
                   .body = tr("New photos are still converted. Start Lumaport again to open its window.")});
}

void NotificationManager::didReceive(const NotificationResponse &response) const
{
    if (response.actionIdentifier != NotificationCenter::defaultAction &&
        response.actionIdentifier != showActionIdentifier) {
        return;
    }
    const QVariant path = response.payload.value(outputPathKey);
    if (path.typeId() == QMetaType::QString) {
        m_workspace->reveal(QUrl::fromLocalFile(path.toString()), response.activationToken);
    }
}
