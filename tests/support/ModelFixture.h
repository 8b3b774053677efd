#pragma once

#include "AppModel.h"
#include "ConversionEngine.h"
#include "FolderMonitor.h"
#include "ManualScheduler.h"
#include "NotificationCenter.h"
#include "NotificationManager.h"
#include "OpenPanel.h"
#include "SystemAppearance.h"
#include "WallClock.h"
#include "Workspace.h"

#include <QTemporaryDir>

#include <deque>

/// An engine whose conversions end when, and as, the test says.
class ManualEngine : public ConversionEngine
{
public:
    struct Conversion
    {
        QUrl source;
        ConversionSettings settings;
        std::function<void(const ConversionOutcome &)> done;
    };

    void convert(const QUrl &sourceURL, const ConversionSettings &settings, QObject *receiver,
                 std::function<void(const ConversionOutcome &)> done) override;
    void prepare() override {}

    /// Ends the oldest conversion.
    void succeed(const QString &outputName);
    void fail(ConversionError error);

    std::deque<Conversion> running;

private:
    void end(const ConversionOutcome &outcome);
};

/// A monitor that reports when the test says so.
class ManualFolderMonitor : public FolderMonitor
{
public:
    bool start(const QUrl &at, std::function<void()> onChange) override;
    void stop() override { report = {}; }
    bool mayMissChanges() const override { return missesChanges; }

    std::function<void()> report;
    bool missesChanges = false; ///< as on another machine's folder
};

struct RecordingNotificationCenter : NotificationCenter
{
    void onResponse(std::function<void(const NotificationResponse &)> newHandler) override
    {
        respond = std::move(newHandler);
    }
    void add(const NotificationRequest &request) override { requests.append(request); }

    QList<NotificationRequest> requests;
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

/// A model with everything around it in the test's hands, on real folders of its own.
class ModelFixture
{
public:
    ModelFixture();

    /// The model as it is after the next launch; the stored values stay.
    AppModel &launch();
    AppModel &model() { return *m_model; }
    /// Writes a file into the watched folder (`bytes` of content) and gives its URL.
    QUrl write(const QString &name, int bytes = 10) const;
    QUrl url(const QString &name) const;
    /// A change report of the watched folder, as the monitor would make it, and the scans that follow until
    /// all settled.
    void settle();
    /// Lets queued main-thread work happen.
    static void turn();

    QTemporaryDir home;
    std::shared_ptr<ManualScheduler> jobs = std::make_shared<ManualScheduler>();
    std::shared_ptr<FixedClock> clock = std::make_shared<FixedClock>();
    std::shared_ptr<DefaultsStore> defaults;
    std::shared_ptr<RecordingNotificationCenter> center = std::make_shared<RecordingNotificationCenter>();
    std::shared_ptr<RecordingWorkspace> workspace = std::make_shared<RecordingWorkspace>();
    std::shared_ptr<ScriptedOpenPanel> panel = std::make_shared<ScriptedOpenPanel>();
    std::shared_ptr<SystemAppearance> appearance = std::make_shared<SystemAppearance>();
    std::shared_ptr<ManualEngine> engine;
    std::shared_ptr<ManualFolderMonitor> monitor = std::make_shared<ManualFolderMonitor>();

private:
    std::unique_ptr<NotificationManager> m_notifications;
    std::unique_ptr<AppModel> m_model;
};
