#include "WelcomePanel.h"

#include <QGuiApplication>

WelcomePanel::WelcomePanel(QWindow &mainWindow)
    : m_mainWindow(mainWindow)
{
    setTitle(tr("Lumaport Welcome"));
    // The window manager keeps a dialog above its main window and leaves it out of lists of windows.
    setFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setColor(Qt::transparent);
    setTransientParent(&mainWindow);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WelcomePanel::takeFocus);
    for (const auto signal :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged}) {
        connect(&mainWindow, signal, this, &WelcomePanel::coverMainWindow);
    }
    coverMainWindow();
}

void WelcomePanel::coverMainWindow()
{
    setGeometry(m_mainWindow.frameGeometry());
}

// The main window is invisible until the welcome ends, and only keys and clicks in this panel can end it.
void WelcomePanel::takeFocus(const QWindow *focus)
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
