#pragma once

#include <memory>

class ConversionEngine;
class DefaultsStore;
class FolderMonitor;
class JobScheduler;
class NotificationManager;
class OpenPanel;
class SystemAppearance;
class WallClock;
class Workspace;

/// The services that the model uses.
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
