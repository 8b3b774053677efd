#pragma once

#include "MenuIcon.h"
#include "StatusItem.h"

#include <QObject>

#include <functional>
#include <memory>

class AppModel;
class DefaultsStore;
class JobScheduler;
class LoginItem;
class MenuBarViewController;
class NotificationManager;
class PanelWindow;
class QQmlEngine;
class ScheduledJob;

/// Owns the status item and its panel, and keeps the item in step with the model.
class AppDelegate : public QObject
{
    Q_OBJECT

public:
    using StatusItemMaker = std::function<std::unique_ptr<StatusItem>()>;

    /// `engine` and `loginItem` must outlive the delegate.
    AppDelegate(QQmlEngine &engine, LoginItem &loginItem, std::shared_ptr<JobScheduler> jobs,
                StatusItemMaker makeStatusItem);
    ~AppDelegate() override;

    /// Sets up notifications, and keeps the application running without a window.
    static void applicationDidFinishLaunching(NotificationManager &notifications);
    /// Closing the main window leaves the application running with its status item.
    static bool applicationShouldTerminateAfterLastWindowClosed() { return false; }

    /// Creates the status item and its panel. Happens once: later calls change nothing. `model` must outlive
    /// the delegate; `openMain` shows the main window and brings it to the front.
    void configureMenuBar(AppModel &model, std::function<void()> openMain);

    /// For a start without a window: the status item is all that there is then. Where no tray has come after
    /// some seconds, shows the main window.
    void openMainUnlessInTray();

    /// Tells once, ever, that watching goes on: where no tray shows the status item nothing else does.
    void lastWindowClosed(NotificationManager &notifications, DefaultsStore &defaults) const;

    /// Opens the panel at the status item, or closes it. Nothing happens before there is an item.
    void togglePopover();

    /// Brings the main window to the front, opening it if need be, and asks it to play the welcome again.
    void replayWelcome(AppModel &model) const;

private:
    /// Brings the icon, its texts and the menu in step with the model.
    void updateMenuIcon(AppModel &model);
    void openMainFromPanel();

    QQmlEngine &m_engine;
    LoginItem &m_loginItem;
    std::shared_ptr<JobScheduler> m_jobs;
    StatusItemMaker m_makeStatusItem;
    std::function<void()> m_openMainWindow;
    std::unique_ptr<StatusItem> m_statusItem;
    std::unique_ptr<MenuBarViewController> m_panelController;
    std::unique_ptr<PanelWindow> m_popover;
    std::unique_ptr<ScheduledJob> m_trayTask;
    MenuIcon m_icon;
    QList<StatusMenuEntry> m_menu;
};
