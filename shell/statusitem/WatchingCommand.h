#pragma once

#include <QString>

class AppModel;

/// The command that pauses watching, or resumes it.
namespace WatchingCommand {

/// What perform() would do now.
QString title(const AppModel &model);
void perform(AppModel &model);

} // namespace WatchingCommand
