#pragma once

#include <memory>

class AppModel;
class PlaceholderWindow;
class QApplication;
class SettingsPortal;
class SingleInstance;

/// The application: its one model, its one window, and what other starts of it ask for.
class LumaportApp
{
public:
    /// `instance` owns the application's name already.
    explicit LumaportApp(SingleInstance &instance);
    ~LumaportApp();

private:
    void showMainWindow();

    std::unique_ptr<SettingsPortal> m_portal;
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<PlaceholderWindow> m_window;
};
