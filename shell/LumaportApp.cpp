#include "LumaportApp.h"

#include "AppModel.h"
#include "PlaceholderWindow.h"
#include "SettingsPortal.h"
#include "SingleInstance.h"

LumaportApp::LumaportApp(SingleInstance &instance)
{
    AppModelServices services = AppModelServices::standard();
    m_portal = std::make_unique<SettingsPortal>(QDBusConnection::sessionBus(), *services.appearance);
    m_model = std::make_unique<AppModel>(std::move(services));
    m_window = std::make_unique<PlaceholderWindow>(*m_model);
    QObject::connect(&instance, &SingleInstance::activated, m_window.get(), [this] { showMainWindow(); });
    QObject::connect(&instance, &SingleInstance::opened, m_model.get(), &AppModel::convertManually);
    showMainWindow();
}

LumaportApp::~LumaportApp() = default;

void LumaportApp::showMainWindow()
{
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}
