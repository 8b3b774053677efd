#include "PresentationView.h"

#include "FilledItem.h"
#include "WelcomePanel.h"
#include "WindowBlending.h"

#include <QQmlComponent>
#include <QQuickWindow>

PresentationView::PresentationView(QQuickItem *parent)
    : QQuickItem(parent)
{}

PresentationView::~PresentationView()
{
    dismiss(MainWindowAfterwards::LeftInPlace);
}

void PresentationView::setIsPresenting(bool presenting)
{
    if (m_isPresenting != presenting) {
        m_isPresenting = presenting;
        Q_EMIT isPresentingChanged();
        schedulePresentation();
    }
}

QQuickWindow *PresentationView::shownWindow() const
{
    return window() && window()->isVisible() ? window() : nullptr;
}

void PresentationView::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange) {
        disconnect(m_visibility);
        if (data.window) {
            m_visibility =
                connect(data.window, &QWindow::visibleChanged, this, &PresentationView::viewDidMoveToWindow);
        }
        viewDidMoveToWindow();
    }
}

// A closed window counts as none: it comes back as a new one.
void PresentationView::viewDidMoveToWindow()
{
    if (m_mainWindow != shownWindow()) {
        dismiss(MainWindowAfterwards::LeftInPlace);
    }
    schedulePresentation();
}

void PresentationView::schedulePresentation()
{
    if (m_isPresenting && shownWindow() && !m_mainWindow) {
        hideMainWindow();
    }
    QMetaObject::invokeMethod(this, &PresentationView::updatePresentation, Qt::QueuedConnection);
}

void PresentationView::hideMainWindow()
{
    m_mainWindow = shownWindow();
    m_surface =
        m_chosenSurface.value_or(WindowBlending::isAvailable() ? Surface::Panel : Surface::MainWindow);
    Q_EMIT surfaceChanged();
    if (m_surface == Surface::Panel) {
        m_originalOpacity = m_mainWindow->opacity();
        m_mainWindow->setOpacity(0.0);
    }
}

void PresentationView::updatePresentation()
{
    if (!m_isPresenting) {
        dismiss(MainWindowAfterwards::BroughtForward);
        return;
    }
    if (!m_mainWindow || m_panel || m_overlay) {
        return;
    }
    std::unique_ptr<QQuickItem> welcome(
        qobject_cast<QQuickItem *>(m_content->create(m_content->creationContext())));
    if (m_surface == Surface::Panel) {
        showInPanel(std::move(welcome));
    } else {
        showInMainWindow(std::move(welcome));
    }
}

void PresentationView::showInPanel(std::unique_ptr<QQuickItem> welcome)
{
    m_panel = std::make_unique<WelcomePanel>(*m_mainWindow);
    m_panel->setContent(std::move(welcome));
    // A panel that the window manager was told to close must not leave the main window invisible.
    connect(m_panel.get(), &WelcomePanel::closed, this, &PresentationView::finished);
    m_panel->show();
    m_panel->raise();
    m_panel->requestActivate();
}

void PresentationView::showInMainWindow(std::unique_ptr<QQuickItem> welcome)
{
    m_overlay = std::move(welcome);
    QQuickItem *all = m_mainWindow->contentItem();
    m_overlay->setZ(1.0);
    keepFilled(*all, *m_overlay);
}

// Not at once: it may be the sender of what ends it. At the latest with this view: at the program's end no
// event loop is left to delete it.
void PresentationView::release(std::unique_ptr<QObject> ended)
{
    ended->setParent(this);
    ended.release()->deleteLater();
}

void PresentationView::dismiss(MainWindowAfterwards showMainWindow)
{
    if (m_panel) {
        m_panel->disconnect(this);
        m_panel->hide();
        release(std::move(m_panel));
    }
    if (m_overlay) {
        m_overlay->setVisible(false);
        release(std::move(m_overlay));
    }
    if (m_mainWindow && m_surface == Surface::Panel) {
        m_mainWindow->setOpacity(m_originalOpacity);
        if (showMainWindow == MainWindowAfterwards::BroughtForward) {
            m_mainWindow->raise();
            m_mainWindow->requestActivate();
        }
    }
    m_mainWindow.clear();
}
