#pragma once

#include "AppModel.h"
#include "ConversionEngine.h"
#include "DefaultsStore.h"
#include "FakeImageWorkerLauncher.h"
#include "FolderMonitor.h"
#include "ManualScheduler.h"
#include "NotificationCenter.h"
#include "NotificationManager.h"
#include "OpenPanel.h"
#include "SystemAppearance.h"
#include "ThumbnailStore.h"
#include "WallClock.h"
#include "Workspace.h"

#include <QTemporaryDir>
#include <QVariantList>

#include <deque>

/// An engine whose conversions end when, and as, the test says.
struct ManualEngine : ConversionEngine
{
    struct Conversion
    {
        QUrl source;
        ConversionSettings settings;
        std::function<void(const ConversionOutcome &)> done;
    };

    void convert(const QUrl &sourceURL, const ConversionSettings &settings, QObject * /*receiver*/,
                 std::function<void(const ConversionOutcome &)> done) override
    {
        running.push_back({sourceURL, settings, std::move(done)});
    }
    void prepare() override {}

    /// Ends the oldest conversion: with a copy of this name beside its source, or with an error.
    void succeed(const QString &outputName);
    void fail(ConversionError error) { end(tl::unexpected(error)); }
    void end(const ConversionOutcome &outcome);

    std::deque<Conversion> running;
};

/// A monitor that reports when the test says so.
struct ManualFolderMonitor : FolderMonitor
{
    bool start(const QUrl &at, std::function<void()> onChange) override;
    void stop() override { report = {}; }
    bool mayMissChanges() const override { return missesChanges; }
    bool hasLostFolder() const override
    {
        ++scans;
        return lostFolder;
    }

    std::function<void()> report;
    bool missesChanges = false; ///< as on another machine's folder
    bool lostFolder = false;    ///< until the next start
    mutable int scans = 0;      ///< each asks once whether the folder is lost
};

/// Keeps every value for as long as the test lasts.
struct MemoryStore : DefaultsStore
{
    std::optional<QString> text(const QString &key) const override { return last<QString>(key); }
    std::optional<QByteArray> data(const QString &key) const override { return last<QByteArray>(key); }
    std::optional<bool> boolean(const QString &key) const override { return last<bool>(key); }
    void store(const QString &key, const QString &text) override { stored[key] << text; }
    void store(const QString &key, const QByteArray &data) override { stored[key] << data; }
    void store(const QString &key, bool value) override { stored[key] << value; }

    QHash<QString, QVariantList> stored; ///< by key, the latest value last

private:
    template<typename Value>
    std::optional<Value> last(const QString &key) const
    {
        const QVariant value = stored.value(key).value(stored.value(key).size() - 1);
        return value.typeId() == qMetaTypeId<Value>() ? std::optional(value.value<Value>()) : std::nullopt;
    }
};

struct RecordingNotificationCenter : NotificationCenter
{
    void onResponse(std::function<void(const NotificationResponse &)> handler) override { respond = handler; }
    void add(const NotificationRequest &request) override { requests.append(request); }
    void setImage(const QString &identifier, const QImage &image) override { images[identifier] = image; }

    QList<NotificationRequest> requests;
    QHash<QString, QImage> images;
    std::function<void(const NotificationResponse &)> respond;
};

struct RecordingWorkspace : Workspace
{
    void reveal(const QUrl &file, const QString &activationToken) override
    {
        revealed.append(file);
        tokens.append(activationToken);
    }
    void open(const QUrl &folder) override { opened.append(folder); }

    QList<QUrl> revealed;
    QStringList tokens; ///< of each that was revealed
    QList<QUrl> opened;
};

struct ScriptedOpenPanel : OpenPanel
{
    void show(const OpenPanelRequest &request, std::function<void(const QList<QUrl> &)> chosen) override
    {
        requests.append(request);
        if (!answer.isEmpty()) {
            chosen(answer);
        }
    }

    QList<OpenPanelRequest> requests;
    QList<QUrl> answer; ///< empty: the user cancels
};

struct FixedClock : WallClock
{
    std::chrono::system_clock::time_point now() const override { return time; }

    std::chrono::system_clock::time_point time{std::chrono::sys_days{std::chrono::year{2026} / 3 / 14}};
};

/// A model whose services are the test's, on a watched folder of its own.
class ModelFixture
{
public:
    ModelFixture();

    /// The model as it is after the next launch; the stored values stay.
    AppModel &launch();
    AppModel &model() { return *m_model; }

    /// The path and the URL of this name in the watched folder.
    QString path(const QString &name) const;
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(path(name)); }
    /// Writes a file of `size` bytes into the watched folder.
    QUrl write(const QString &name, int size = 10) const;

    /// Time goes by, and the jobs that fall due run.
    void pass(std::chrono::milliseconds time);
    /// A change report of the watched folder, and the scan that follows.
    void scan();
    /// The same, and the scan that finds what has settled.
    void settle();
    /// Lets queued main-thread work happen.
    static void turn();

    QTemporaryDir home;
    std::shared_ptr<ManualScheduler> jobs = std::make_shared<ManualScheduler>();
    std::shared_ptr<FixedClock> clock = std::make_shared<FixedClock>();
    std::shared_ptr<MemoryStore> defaults = std::make_shared<MemoryStore>();
    std::shared_ptr<RecordingNotificationCenter> center = std::make_shared<RecordingNotificationCenter>();
    std::shared_ptr<RecordingWorkspace> workspace = std::make_shared<RecordingWorkspace>();
    std::shared_ptr<ScriptedOpenPanel> panel = std::make_shared<ScriptedOpenPanel>();
    std::shared_ptr<SystemAppearance> appearance = std::make_shared<SystemAppearance>();
    std::shared_ptr<ManualEngine> engine;
    std::shared_ptr<ManualFolderMonitor> monitor = std::make_shared<ManualFolderMonitor>();
    std::shared_ptr<FakeImageWorkerLauncher> photos = std::make_shared<FakeImageWorkerLauncher>();
    ThumbnailStore thumbnails{photos};

private:
    std::unique_ptr<NotificationManager> m_notifications;
    std::unique_ptr<AppModel> m_model;
};
