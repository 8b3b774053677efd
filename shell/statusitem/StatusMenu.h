#pragma once

#include "StatusItem.h"

#include <QCoreApplication>

class AppModel;
class LoginItem;

/// The status item's own menu. It offers what the panel does, for desktops that show only menus.
struct StatusMenu
{
    Q_DECLARE_TR_FUNCTIONS(StatusMenu)

public:
    /// What the menu's commands do outside of the model.
    struct Actions
    {
        std::function<void()> showQuickPanel;
        std::function<void()> openMain;
        std::function<void()> replayWelcome;
    };

    /// The entries for the present state. Their actions use `model` and `loginItem` when they are called.
    static QList<StatusMenuEntry> entries(AppModel &model, LoginItem &loginItem, const Actions &actions);

    /// The title of the command that pauses or resumes watching.
    static QString watchingTitle(const AppModel &model);
};
