#include "AppModelServices.h"

#include "ConversionEngine.h"
#include "DefaultsStore.h"
#include "FolderMonitor.h"
#include "ImageWorkerLauncher.h"
#include "JobScheduler.h"
#include "NotificationManager.h"
#include "OpenPanel.h"
#include "SystemAppearance.h"
#include "WallClock.h"
#include "Workspace.h"

AppModelServices AppModelServices::standard()
{
    return {.jobs = JobScheduler::create(),
            .clock = std::make_shared<WallClock>(),
            .defaults = DefaultsStore::standard(),
            .notifications = &NotificationManager::shared(),
            .workspace = Workspace::create(),
            .openPanel = OpenPanel::create(),
            .appearance = std::make_shared<SystemAppearance>(),
            .engine = ConversionEngine::create(ImageWorkerLauncher::create()),
            .folderMonitor = std::make_shared<FolderMonitor>()};
}
