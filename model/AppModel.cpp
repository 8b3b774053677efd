#include "AppModel.h"

#include "DefaultsStore.h"
#include "FolderLook.h"
#include "FolderMonitor.h"
#include "JobScheduler.h"
#include "NotificationManager.h"
#include "OpenPanel.h"
#include "SystemAppearance.h"
#include "WallClock.h"
#include "Workspace.h"

#include <QDir>
#include <QStandardPaths>

namespace {

constexpr qsizetype storedItemsLimit = 12;

const QString watchFolderKey = QStringLiteral("watchFolder");
const QString appearanceModeKey = QStringLiteral("appearanceMode");
const QString settingsKey = QStringLiteral("conversionSettings");
const QString isWatchingKey = QStringLiteral("isWatching");
const QString recentItemsKey = QStringLiteral("recentItems");

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

} // namespace

AppModel::AppModel(AppModelServices services)
    : m_services(std::move(services))
{
    for (const auto signal :
         {&AppModel::isWatchingChanged, &AppModel::watchFolderChanged, &AppModel::monitorAvailableChanged}) {
        connect(this, signal, this, &AppModel::monitorTextsChanged);
    }
    clearStatus();
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
    const QString storedFolder = defaults.text(watchFolderKey).value_or(QString());
    m_watchFolder = folderUrl(storedFolder.isEmpty() ? defaultFolder() : storedFolder);
    m_appearanceMode =
        optionFromRawValue<AppearanceMode>(defaults.text(appearanceModeKey).value_or(QString()))
            .value_or(AppearanceMode::system);
    if (const auto json = defaults.data(settingsKey)) {
        m_settings = ConversionSettings::fromJson(*json).value_or(ConversionSettings{});
    }
    if (const auto watching = defaults.boolean(isWatchingKey)) {
        setIsWatching(*watching);
    }
    if (const auto json = defaults.data(recentItemsKey)) {
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
    m_services.defaults->store(isWatchingKey, isWatching);
    reactToWatching();
}

void AppModel::setWatchFolder(const QUrl &folder)
{
    m_watchFolder = folderUrl(folder.toLocalFile());
    m_services.defaults->store(watchFolderKey, watchFolder().toLocalFile());
}

void AppModel::setAppearanceMode(AppearanceMode mode)
{
    m_appearanceMode = mode;
    m_services.defaults->store(appearanceModeKey, rawValue(mode));
    applyAppearance();
}

void AppModel::applyAppearance()
{
    switch (appearanceMode()) {
    case AppearanceMode::system:
        return m_services.appearance->force(std::nullopt);
    case AppearanceMode::light:
        return m_services.appearance->force(SystemAppearance::ColorScheme::Light);
    case AppearanceMode::dark:
        return m_services.appearance->force(SystemAppearance::ColorScheme::Dark);
    }
}

void AppModel::setSettings(const ConversionSettings &settings)
{
    m_settings = settings;
    saveSettings();
}

void AppModel::saveSettings()
{
    if (const auto json = settings().toJson()) {
        m_services.defaults->store(settingsKey, *json);
    }
}

void AppModel::saveItems()
{
    if (const auto json = ConversionItem::listToJson(m_items.mid(0, storedItemsLimit))) {
        m_services.defaults->store(recentItemsKey, *json);
    }
}

void AppModel::openWatchFolder()
{
    m_services.workspace->open(watchFolder());
}
