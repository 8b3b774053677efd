#include "WelcomePanel.h"

#include "FilledItem.h"

#include <QGuiApplication>
#include <QQuickItem>

WelcomePanel::WelcomePanel(QWindow &mainWindow)
    : m_mainWindow(mainWindow)
{
    setTitle(tr("Lumaport Welcome"));
    // Of a dialog, the window manager is told whose it is: it stays above the main window, and out of lists
    // of windows.
    setFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setColor(Qt::transparent);
    setTransientParent(&mainWindow);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WelcomePanel::standInForMainWindow);
    for (const auto signal :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged}) {
        connect(&mainWindow, signal, this, &WelcomePanel::coverMainWindow);
    }
    coverMainWindow();
}

void WelcomePanel::setContent(std::unique_ptr<QQuickItem> content)
{
    m_content = std::move(content);
    keepFilled(*contentItem(), *m_content);
}

void WelcomePanel::coverMainWindow()
{
    setGeometry(m_mainWindow.frameGeometry());
}

// Whatever brings the main window forward, it cannot be seen, and only this panel can end that.
void WelcomePanel::standInForMainWindow(const QWindow *focus)
{
    if (focus == &m_mainWindow && isVisible()) {
        raise();
        requestActivate();
    }
}

void WelcomePanel::closeEvent(QCloseEvent *event)
{
    QQuickWindow::closeEvent(event);
    Q_EMIT closed();
}
