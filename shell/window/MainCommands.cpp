#include "MainCommands.h"

#include "AppDelegate.h"
#include "AppModel.h"
#include "LoginItem.h"
#include "StatusMenu.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

MainCommands::MainCommands(AppModel &model, AppDelegate &delegate, LoginItem &loginItem,
                           MainWindowLayout layout, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_delegate(delegate)
    , m_loginItem(loginItem)
    , m_layout(std::move(layout))
{
    connect(&model, &AppModel::isWatchingChanged, this, &MainCommands::watchingTitleChanged);
    connect(&loginItem, &LoginItem::enabledChanged, this, &MainCommands::startsAtLoginChanged);
}

bool MainCommands::startsAtLogin() const
{
    return m_loginItem.isEnabled();
}

void MainCommands::toggleStartAtLogin()
{
    m_loginItem.setEnabled(!m_loginItem.isEnabled());
}

QString MainCommands::watchingTitle() const
{
    return StatusMenu::watchingTitle(m_model);
}

void MainCommands::showQuickPanel()
{
    m_delegate.togglePopover();
}

void MainCommands::replayWelcome()
{
    m_delegate.replayWelcome(m_model);
}

void MainCommands::toggleWatching()
{
    m_model.setIsWatching(!m_model.isWatching());
}

void MainCommands::useRecommendedWindowSize() const
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto main = std::find_if(windows.begin(), windows.end(), [](const QWindow *window) {
        return window->objectName() == QLatin1String("main") && window->isVisible();
    });
    if (main != windows.end()) {
        m_layout.apply(**main, MainWindowLayout::SavedFrame::ignore);
    }
}

void MainCommands::quit()
{
    QCoreApplication::quit();
}
