#include "AppModel.h"

#include "ConversionEngine.h"
#include "DefaultsStore.h"
#include "FolderMonitor.h"
#include "JobScheduler.h"
#include "ModelTexts.h"
#include "NotificationManager.h"
#include "OpenPanel.h"
#include "SystemAppearance.h"
#include "WallClock.h"
#include "Workspace.h"

#include <QDir>
#include <QStandardPaths>

namespace {

constexpr qsizetype storedItemsLimit = 12;

QString watchFolderKey()
{
    return QStringLiteral("watchFolder");
}

QString appearanceModeKey()
{
    return QStringLiteral("appearanceMode");
}

QString settingsKey()
{
    return QStringLiteral("conversionSettings");
}

QString isWatchingKey()
{
    return QStringLiteral("isWatching");
}

QString recentItemsKey()
{
    return QStringLiteral("recentItems");
}

QString defaultFolder()
{
    const QString downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    return downloads.isEmpty() ? QDir::home().filePath(QStringLiteral("Downloads")) : downloads;
}

/// Without a slash at the end, so that its last component is the folder's name.
QUrl folderUrl(const QString &path)
{
    return QUrl::fromLocalFile(path).adjusted(QUrl::StripTrailingSlash);
}

/// None: what the desktop asks for.
std::optional<SystemAppearance::ColorScheme> forcedScheme(AppearanceMode mode)
{
    switch (mode) {
    case AppearanceMode::system:
        return std::nullopt;
    case AppearanceMode::light:
        return SystemAppearance::ColorScheme::Light;
    case AppearanceMode::dark:
        return SystemAppearance::ColorScheme::Dark;
    }
    Q_UNREACHABLE();
}

} // namespace

AppModel::AppModel()
    : AppModel(AppModelServices::standard())
{}

AppModel::AppModel(AppModelServices services, QObject *parent)
    : QObject(parent)
    , m_lastEventText(ModelTexts::waiting())
    , m_services(std::move(services))
{
    for (const auto signal :
         {&AppModel::isWatchingChanged, &AppModel::watchFolderChanged, &AppModel::monitorAvailableChanged}) {
        connect(this, signal, this, &AppModel::monitorTextsChanged);
    }
    loadStoredState();
    m_services.notifications->configure();
    applyAppearance();
    seedKnownFiles();
    startMonitoringFolder();
}

AppModel::~AppModel()
{
    m_services.folderMonitor->stop(); // its reports call this model
}

void AppModel::loadStoredState()
{
    const DefaultsStore &defaults = *m_services.defaults;
    const QString storedFolder = defaults.text(watchFolderKey()).value_or(QString());
    m_watchFolder = folderUrl(storedFolder.isEmpty() ? defaultFolder() : storedFolder);
    m_appearanceMode =
        optionFromRawValue<AppearanceMode>(defaults.text(appearanceModeKey()).value_or(QString()))
            .value_or(AppearanceMode::system);
    if (const auto json = defaults.data(settingsKey())) {
        m_settings = ConversionSettings::fromJson(*json).value_or(ConversionSettings{});
    }
    if (const auto watching = defaults.boolean(isWatchingKey())) {
        m_isWatching = *watching;
        didSetIsWatching();
    }
    if (const auto json = defaults.data(recentItemsKey())) {
        m_items =
            ConversionItem::listFromJson(*json).value_or(QList<ConversionItem>()).mid(0, storedItemsLimit);
    }
}

void AppModel::setItems(const QList<ConversionItem> &items)
{
    m_items = items;
    Q_EMIT itemsChanged();
}

void AppModel::setIsWatching(bool isWatching)
{
    m_isWatching = isWatching;
    didSetIsWatching();
    Q_EMIT isWatchingChanged();
}

void AppModel::didSetIsWatching()
{
    m_services.defaults->store(isWatchingKey(), m_isWatching);
    reactToWatching();
}

void AppModel::setWatchFolder(const QUrl &folder)
{
    m_watchFolder = folderUrl(folder.toLocalFile());
    m_services.defaults->store(watchFolderKey(), m_watchFolder.toLocalFile());
    Q_EMIT watchFolderChanged();
}

void AppModel::setAppearanceMode(AppearanceMode mode)
{
    m_appearanceMode = mode;
    m_services.defaults->store(appearanceModeKey(), rawValue(mode));
    applyAppearance();
    Q_EMIT appearanceModeChanged();
}

void AppModel::applyAppearance()
{
    m_services.appearance->force(forcedScheme(m_appearanceMode));
}

void AppModel::setSettings(const ConversionSettings &settings)
{
    m_settings = settings;
    saveSettings();
    Q_EMIT settingsChanged();
}

void AppModel::saveSettings()
{
    if (const auto json = m_settings.toJson()) {
        m_services.defaults->store(settingsKey(), *json);
    }
}

void AppModel::saveItems()
{
    if (const auto json = ConversionItem::listToJson(m_items.mid(0, storedItemsLimit))) {
        m_services.defaults->store(recentItemsKey(), *json);
    }
}

void AppModel::setIsDropTargeted(bool targeted)
{
    m_isDropTargeted = targeted;
    Q_EMIT isDropTargetedChanged();
}

void AppModel::setLastEventText(const QString &text)
{
    m_lastEventText = text;
    Q_EMIT lastEventTextChanged();
}

void AppModel::setWelcomeReplayToken(int token)
{
    m_welcomeReplayToken = token;
    Q_EMIT welcomeReplayTokenChanged();
}

void AppModel::openWatchFolder()
{
    m_services.workspace->open(m_watchFolder);
}
