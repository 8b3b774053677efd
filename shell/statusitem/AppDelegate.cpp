#include "AppDelegate.h"

#include "AppModel.h"
#include "DefaultsStore.h"
#include "JobScheduler.h"
#include "LoginItem.h"
#include "MenuBarViewController.h"
#include "NotificationManager.h"
#include "PanelWindow.h"
#include "StatusItem.h"
#include "StatusMenu.h"

#include <QGuiApplication>

#include <algorithm>

namespace {

// At login a panel may come later than the program.
constexpr std::chrono::seconds trayPatience{10};

const QString hasToldKey = QStringLiteral("hasToldThatWatchingGoesOn");

} // namespace

AppDelegate::AppDelegate(QQmlEngine &engine, LoginItem &loginItem, std::shared_ptr<JobScheduler> jobs,
                         StatusItemMaker makeStatusItem)
    : m_engine(engine)
    , m_loginItem(loginItem)
    , m_jobs(std::move(jobs))
    , m_makeStatusItem(std::move(makeStatusItem))
{}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching(NotificationManager &notifications)
{
    QGuiApplication::setQuitOnLastWindowClosed(applicationShouldTerminateAfterLastWindowClosed());
    notifications.configure();
}

void AppDelegate::configureMenuBar(AppModel &model, std::function<void()> openMain)
{
    if (m_statusItem) {
        return;
    }
    m_openMainWindow = std::move(openMain);
    m_statusItem = m_makeStatusItem();
    m_panelController = std::make_unique<MenuBarViewController>(model, [this] { openMainFromPanel(); });
    m_popover = std::make_unique<PanelWindow>(m_engine, *m_panelController, m_jobs);
    connect(m_statusItem.get(), &StatusItem::activated, this,
            [this] { m_popover->toggleByClick(m_statusItem->place()); });

    updateMenuIcon(model);
    for (const auto signal :
         {&AppModel::itemsChanged, &AppModel::monitorTextsChanged, &AppModel::settingsChanged}) {
        connect(&model, signal, this, [this, &model] { updateMenuIcon(model); });
    }
    connect(&m_loginItem, &LoginItem::enabledChanged, this, [this, &model] { updateMenuIcon(model); });
}

void AppDelegate::updateMenuIcon(AppModel &model)
{
    const MenuIcon icon = MenuIcon::forModel(model);
    if (icon != m_icon) {
        m_icon = icon;
        m_statusItem->setLook({.images = icon.images(),
                               .toolTip = icon.toolTip,
                               .accessibilityLabel = icon.accessibilityLabel});
    }
    const auto menu = StatusMenu::entries(model, m_loginItem,
                                          {.showQuickPanel = [this] { togglePopover(); },
                                           .openMain = [this] { openMainFromPanel(); },
                                           .replayWelcome = [this, &model] { replayWelcome(model); }});
    // The menu may be open: it is replaced only when it looks different.
    if (!std::ranges::equal(menu, m_menu, &StatusMenuEntry::looksLike)) {
        m_menu = menu;
        m_statusItem->setMenu(menu);
    }
}

void AppDelegate::openMainFromPanel()
{
    m_popover->hide();
    m_openMainWindow();
}

void AppDelegate::openMainUnlessInTray()
{
    m_trayTask = m_jobs->after(trayPatience, [this] {
        if (!m_statusItem->isShown()) {
            m_openMainWindow();
        }
    });
}

void AppDelegate::lastWindowClosed(NotificationManager &notifications, DefaultsStore &defaults) const
{
    if (!m_statusItem->isShown() && !defaults.boolean(hasToldKey)) {
        defaults.store(hasToldKey, true);
        notifications.notifyStillWatching();
    }
}

void AppDelegate::togglePopover()
{
    if (m_statusItem) {
        m_popover->toggle(m_statusItem->place());
    }
}

void AppDelegate::replayWelcome(AppModel &model) const
{
    if (m_openMainWindow) {
        m_openMainWindow();
    }
    QMetaObject::invokeMethod(
        &model, [&model] { model.setWelcomeReplayToken(model.welcomeReplayToken() + 1); },
        Qt::QueuedConnection);
}
