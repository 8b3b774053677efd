#pragma once

#include "AppModelServices.h"
#include "AppearanceMode.h"
#include "ConversionEngine.h"
#include "ConversionItem.h"
#include "ConversionSettings.h"
#include "FileSignature.h"
#include "FolderListing.h"

#include <QHash>
#include <QObject>
#include <QProperty>

#include <chrono>

class FolderLook;
class ScheduledJob;

/// All state of the application: settings, history, watched folder and status line. It runs the conversion
/// queue and finds new arrivals in the watched folder. Everything here happens on the main thread. Jobs end
/// with the model.
class AppModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<ConversionItem> items READ items WRITE setItems NOTIFY itemsChanged)
    Q_PROPERTY(bool isWatching READ isWatching WRITE setIsWatching NOTIFY isWatchingChanged)
    Q_PROPERTY(QUrl watchFolder READ watchFolder NOTIFY watchFolderChanged)
    Q_PROPERTY(AppearanceMode appearanceMode READ appearanceMode WRITE setAppearanceMode NOTIFY
                   appearanceModeChanged)
    Q_PROPERTY(ConversionSettings settings READ settings WRITE setSettings NOTIFY settingsChanged)
    Q_PROPERTY(bool isDropTargeted READ isDropTargeted WRITE setIsDropTargeted NOTIFY isDropTargetedChanged)
    Q_PROPERTY(QString lastEventText READ lastEventText WRITE setLastEventText NOTIFY lastEventTextChanged)
    Q_PROPERTY(bool monitorAvailable READ monitorAvailable NOTIFY monitorAvailableChanged)
    Q_PROPERTY(int welcomeReplayToken READ welcomeReplayToken WRITE setWelcomeReplayToken NOTIFY
                   welcomeReplayTokenChanged)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY itemsChanged)
    Q_PROPERTY(int readyCount READ readyCount NOTIFY itemsChanged)
    Q_PROPERTY(QString monitorTitle READ monitorTitle NOTIFY monitorTextsChanged)
    Q_PROPERTY(QString monitorDetail READ monitorDetail NOTIFY monitorTextsChanged)
    Q_PROPERTY(QString monitorSymbol READ monitorSymbol NOTIFY monitorTextsChanged)

public:
    explicit AppModel(AppModelServices services);
    ~AppModel() override;

    /// The history, newest first; at most 20 entries.
    QList<ConversionItem> items() const { return m_items; }
    void setItems(const QList<ConversionItem> &items);
    bool isWatching() const { return m_isWatching; }
    void setIsWatching(bool isWatching);
    QUrl watchFolder() const { return m_watchFolder; }
    AppearanceMode appearanceMode() const { return m_appearanceMode; }
    void setAppearanceMode(AppearanceMode mode);
    ConversionSettings settings() const { return m_settings; }
    void setSettings(const ConversionSettings &settings);
    bool isDropTargeted() const { return m_isDropTargeted; }
    void setIsDropTargeted(bool targeted) { m_isDropTargeted = targeted; }
    /// The status line.
    QString lastEventText() const { return m_lastEventText; }
    void setLastEventText(const QString &text) { m_lastEventText = text; }
    /// The phase that the landing stage shows; none when idle.
    std::optional<ConversionStatus> activeStatus() const { return m_activeStatus; }
    bool monitorAvailable() const { return m_monitorAvailable; }
    int welcomeReplayToken() const { return m_welcomeReplayToken; }
    void setWelcomeReplayToken(int token) { m_welcomeReplayToken = token; }

    /// Any entry is queued or converting.
    bool isBusy() const;
    /// Number of entries that are ready.
    int readyCount() const;
    QString monitorTitle() const { return monitorTexts().title; }
    QString monitorDetail() const { return monitorTexts().detail; }
    QString monitorSymbol() const { return monitorTexts().symbol; }

    /// Photos that the user dropped or chose. Files that are not HEIC or HEIF by name are left out.
    void convertManually(const QList<QUrl> &urls);
    /// Shows the converted file of an entry in the file manager; an entry without one does nothing.
    void reveal(const ConversionItem &item);
    /// Stores the newest 12 entries.
    void saveItems();

    Q_INVOKABLE void chooseWatchFolder();
    /// Converts every photo of the watched folder, known or not.
    Q_INVOKABLE void convertExistingFiles();
    Q_INVOKABLE void retryMonitoring();

    /// Opens the watched folder in the file manager.
    Q_INVOKABLE void openWatchFolder();
    /// Asks the user for photos and converts them.
    Q_INVOKABLE void choosePhotos();
    /// Empties the history; files on disk are not touched.
    Q_INVOKABLE void clearHistory();

Q_SIGNALS:
    void itemsChanged();
    void isWatchingChanged();
    void watchFolderChanged();
    void appearanceModeChanged();
    void settingsChanged();
    void isDropTargetedChanged();
    void lastEventTextChanged();
    void activeStatusChanged();
    void monitorAvailableChanged();
    void welcomeReplayTokenChanged();
    /// Something that the three monitor texts are made of changed.
    void monitorTextsChanged();

private:
    struct MonitorTexts
    {
        QString title;
        QString detail;
        QString symbol;
    };

    // State and persistence: AppModel.cpp
    void loadStoredState();
    void setWatchFolder(const QUrl &folder);
    void saveSettings();
    void applyAppearance();

    // The conversion queue: AppModelQueue.cpp
    void enqueue(const QList<QUrl> &urls);
    void startConversions(const QList<ConversionItem> &accepted, const ConversionSettings &settings);
    void endConversion(const ConversionItem &accepted, const ConversionSettings &settings,
                       const ConversionOutcome &outcome);
    ConversionItem *find(const QUuid &id);
    void trimAndSaveItems();
    void showStatus(ConversionStatus status, std::optional<std::chrono::milliseconds> clearAfter = {});
    void clearStatus();

    // Watching and scanning: AppModelWatching.cpp
    static constexpr std::chrono::milliseconds changeDebounce{350};
    void startMonitoringFolder();
    void seedKnownFiles();
    void scheduleScan(std::chrono::milliseconds after);
    void scanForNewFiles();
    void scan(const std::optional<FolderListing::Contents> &contents);
    void returnToFolder(const FolderListing::Contents &contents);
    void pollSilentFolder();
    void reactToWatching();
    MonitorTexts monitorTexts() const;
    static QList<QUrl> heicFiles(const QUrl &folder);
    static std::optional<FileSignature> signature(const QUrl &file);

    QList<ConversionItem> m_items;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppModel, bool, m_isWatching, true, &AppModel::isWatchingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, QUrl, m_watchFolder, &AppModel::watchFolderChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, AppearanceMode, m_appearanceMode, &AppModel::appearanceModeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, ConversionSettings, m_settings, &AppModel::settingsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, bool, m_isDropTargeted, &AppModel::isDropTargetedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, QString, m_lastEventText, &AppModel::lastEventTextChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, std::optional<ConversionStatus>, m_activeStatus,
                               &AppModel::activeStatusChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, bool, m_monitorAvailable, &AppModel::monitorAvailableChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, int, m_welcomeReplayToken, &AppModel::welcomeReplayTokenChanged)

    AppModelServices m_services;
    std::unique_ptr<ScheduledJob> m_pendingScanTask;
    std::unique_ptr<ScheduledJob> m_pollTask; ///< for folders that change without a report
    std::unique_ptr<ScheduledJob> m_statusClearTask;
    std::unique_ptr<FolderLook> m_look;         ///< under way
    bool m_isFolderLost = false;                ///< it was watched, and its path is looked for
    QHash<QString, FileSignature> m_knownFiles; ///< by path: photos that need no conversion
    QHash<QString, FileSignature> m_candidates; ///< by path: new or changed photos waiting to settle
    /// By path: photos with a conversion under way, as they were when it was asked for.
    QHash<QString, std::optional<FileSignature>> m_processingPaths;
};
