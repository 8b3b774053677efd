#pragma once

#include "StatusItem.h"

class AppModel;

/// The status item's own menu. It offers what the panel does, for desktops that show only menus.
namespace StatusMenu {

/// What a menu asks of the shell.
struct Actions
{
    std::function<void()> showQuickPanel;
    std::function<void()> openMain;
    std::function<void()> quit;
};

/// The entries for the model's present state. Their actions use `model` when they are called.
QList<StatusMenuEntry> entries(AppModel &model, const Actions &actions);

} // namespace StatusMenu
