#pragma once

#include <memory>

class AppDelegate;
class AppModel;
class LoginItem;
class MainCommands;
class MainViewController;
class MainWindow;
class QQmlEngine;
class SettingsPortal;
class SingleInstance;
class SystemAppearance;

/// The application: owns its one model, its one window and its status item, and serves further starts.
class LumaportApp
{
public:
    /// `instance` owns the application's bus name already.
    explicit LumaportApp(SingleInstance &instance);
    ~LumaportApp();

private:
    // Each member uses those above it, and so is destroyed before them.
    std::shared_ptr<SystemAppearance> m_appearance;
    std::unique_ptr<SettingsPortal> m_portal;
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<LoginItem> m_loginItem;
    std::unique_ptr<AppDelegate> m_delegate;
    std::unique_ptr<MainCommands> m_commands;
    std::unique_ptr<MainViewController> m_mainView;
    std::unique_ptr<MainWindow> m_window;
};
