#include "WelcomePanel.h"

#include <QQuickItem>

WelcomePanel::WelcomePanel(QWindow &mainWindow)
    : m_mainWindow(mainWindow)
{
    setTitle(tr("Lumaport Welcome"));
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setColor(Qt::transparent);
    setTransientParent(&mainWindow);
    for (const auto signal :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged}) {
        connect(&mainWindow, signal, this, &WelcomePanel::coverMainWindow);
    }
    coverMainWindow();
}

void WelcomePanel::setContent(std::unique_ptr<QQuickItem> content)
{
    m_content = std::move(content);
    m_content->setParentItem(contentItem());
    const auto fill = [this] { m_content->setSize(contentItem()->size()); };
    connect(contentItem(), &QQuickItem::widthChanged, m_content.get(), fill);
    connect(contentItem(), &QQuickItem::heightChanged, m_content.get(), fill);
    fill();
}

void WelcomePanel::coverMainWindow()
{
    setGeometry(m_mainWindow.frameGeometry());
}

void WelcomePanel::closeEvent(QCloseEvent *event)
{
    QQuickWindow::closeEvent(event);
    Q_EMIT closed();
}
