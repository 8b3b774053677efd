#pragma once

#include "AppearanceMode.h"
#include "ConversionItem.h"
#include "ConversionSettings.h"
#include "FileSignature.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <chrono>
#include <memory>

class ConversionEngine;
class DefaultsStore;
class FolderMonitor;
class JobScheduler;
class NotificationManager;
class OpenPanel;
class ScheduledJob;
class SystemAppearance;
class WallClock;
class Workspace;

/// What the model uses of the world around it.
struct AppModelServices
{
    std::shared_ptr<JobScheduler> jobs;
    std::shared_ptr<WallClock> clock;
    std::shared_ptr<DefaultsStore> defaults;
    NotificationManager *notifications = nullptr;
    std::shared_ptr<Workspace> workspace;
    std::shared_ptr<OpenPanel> openPanel;
    std::shared_ptr<SystemAppearance> appearance;
    std::shared_ptr<ConversionEngine> engine;
    std::shared_ptr<FolderMonitor> folderMonitor;

    /// The real ones.
    static AppModelServices standard();
};

/// All state of the application, in one place: settings, history, watched folder and status line. It runs the
/// conversion queue and finds new arrivals in the watched folder. Everything here happens on the main thread;
/// jobs end with the model.
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
    /// With the real services.
    AppModel();
    explicit AppModel(AppModelServices services, QObject *parent = nullptr);
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
    void setIsDropTargeted(bool targeted);
    /// The status line.
    QString lastEventText() const { return m_lastEventText; }
    void setLastEventText(const QString &text);
    /// The phase that the landing stage shows; none when idle.
    std::optional<ConversionStatus> activeStatus() const { return m_activeStatus; }
    bool monitorAvailable() const { return m_monitorAvailable; }
    int welcomeReplayToken() const { return m_welcomeReplayToken; }
    void setWelcomeReplayToken(int token);

    /// Any entry is queued or converting.
    bool isBusy() const;
    /// Number of entries that are ready.
    int readyCount() const;
    QString monitorTitle() const;
    QString monitorDetail() const;
    QString monitorSymbol() const;

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
    // State and persistence: AppModel.cpp
    void loadStoredState();
    void setWatchFolder(const QUrl &folder);
    void saveSettings();
    void applyAppearance();
    void didSetIsWatching();

    // The conversion queue: AppModelQueue.cpp
    void enqueue(const QList<QUrl> &urls);
    void startConversions(const QList<ConversionItem> &accepted, const ConversionSettings &settings);
    void finishConversion(const QUuid &id, const QUrl &sourceURL, const ConversionSettings &settings,
                          const QUrl &outputURL);
    void failConversion(const QUuid &id, const QUrl &sourceURL, const QString &errorMessage);
    void endConversion(const QUrl &sourceURL, ConversionStatus outcome, std::chrono::seconds shownFor);
    ConversionItem *find(const QUuid &id);
    void trimAndSaveItems();
    void showStatus(ConversionStatus status, std::optional<std::chrono::milliseconds> clearAfter = {});
    void setActiveStatus(std::optional<ConversionStatus> status);

    // Watching and scanning: AppModelWatching.cpp
    void startMonitoringFolder();
    void seedKnownFiles();
    void scheduleScan(std::chrono::milliseconds after);
    void scanForNewFiles();
    void lookNowAndThen();
    void reactToWatching();
    static QList<QUrl> heicFiles(const QUrl &folder);
    static std::optional<FileSignature> signature(const QUrl &file);

    QList<ConversionItem> m_items;
    bool m_isWatching = true;
    QUrl m_watchFolder;
    AppearanceMode m_appearanceMode = AppearanceMode::system;
    ConversionSettings m_settings;
    bool m_isDropTargeted = false;
    QString m_lastEventText;
    std::optional<ConversionStatus> m_activeStatus;
    bool m_monitorAvailable = false;
    int m_welcomeReplayToken = 0;

    AppModelServices m_services;
    std::unique_ptr<ScheduledJob> m_pendingScanTask;
    std::unique_ptr<ScheduledJob> m_lookTask; ///< for folders that change without a report
    std::unique_ptr<ScheduledJob> m_statusClearTask;
    QHash<QString, FileSignature> m_knownFiles; ///< by path: photos that need no conversion
    QHash<QString, FileSignature> m_candidates; ///< by path: new or changed photos waiting to settle
    QSet<QString> m_processingPaths;            ///< photos with a conversion under way
};
