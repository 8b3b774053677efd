#include "LumaportApp.h"

#include "AppDelegate.h"
#include "AppModel.h"
#include "AppModelSingleton.h"
#include "JobScheduler.h"
#include "LoginItem.h"
#include "MainCommands.h"
#include "MainViewController.h"
#include "MainWindow.h"
#include "NotificationManager.h"
#include "SettingsPortal.h"
#include "SingleInstance.h"
#include "StatusItem.h"
#include "SystemAppearance.h"
#include "SystemAppearanceSingleton.h"

#include <QGuiApplication>
#include <QQmlEngine>

namespace {

// So that a dark desktop sees no light frame first.
constexpr std::chrono::milliseconds portalPatience{250};

} // namespace

LumaportApp::LumaportApp(SingleInstance &instance)
    : m_engine(std::make_unique<QQmlEngine>())
{
    AppModelServices services = AppModelServices::standard();
    const std::shared_ptr<JobScheduler> jobs = services.jobs;
    const std::shared_ptr<DefaultsStore> defaults = services.defaults;
    const MainWindowLayout layout(defaults);
    m_appearance = services.appearance;
    m_portal = std::make_unique<SettingsPortal>(QDBusConnection::sessionBus(), *m_appearance);
    SystemAppearanceSingleton::provide(*m_appearance);

    m_loginItem = std::make_unique<LoginItem>(LoginItem::userFolder());
    m_delegate = std::make_unique<AppDelegate>(*m_engine, *m_loginItem, jobs, &StatusItem::create);
    AppDelegate::applicationDidFinishLaunching(*services.notifications);
    m_model = std::make_unique<AppModel>(std::move(services));
    AppModelSingleton::provide(*m_model);
    m_commands = std::make_unique<MainCommands>(*m_model, *m_delegate, *m_loginItem, layout);
    m_mainView = std::make_unique<MainViewController>(*m_model, defaults);
    m_window = std::make_unique<MainWindow>(
        *m_engine,
        QVariantMap{{QStringLiteral("commands"), QVariant::fromValue(m_commands.get())},
                    {QStringLiteral("controller"), QVariant::fromValue(m_mainView.get())}},
        layout, jobs);

    const auto openMain = [this] { m_window->open(); };
    QObject::connect(&instance, &SingleInstance::activated, m_commands.get(), openMain);
    QObject::connect(&instance, &SingleInstance::opened, m_model.get(), &AppModel::convertManually);
    QObject::connect(qGuiApp, &QGuiApplication::lastWindowClosed, m_commands.get(), [this, defaults] {
        m_delegate->lastWindowClosed(NotificationManager::shared(), *defaults);
    });
    const bool isStartedByBus = SingleInstance::takeStartByBus();
    if (!isStartedByBus) {
        m_portal->waitForAnswer(portalPatience);
        openMain();
    }
    m_delegate->configureMenuBar(*m_model, openMain);
    if (isStartedByBus) {
        m_delegate->openMainUnlessInTray();
    }
}

LumaportApp::~LumaportApp() = default;
