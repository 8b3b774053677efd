#include "WatchingCommand.h"

#include "AppModel.h"

#include <QCoreApplication>

QString WatchingCommand::title(const AppModel &model)
{
    return model.isWatching() ? QCoreApplication::translate("WatchingCommand", "Pause Watching")
                              : QCoreApplication::translate("WatchingCommand", "Resume Watching");
}

void WatchingCommand::perform(AppModel &model)
{
    model.setIsWatching(!model.isWatching());
}
