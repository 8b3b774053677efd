#include "PresentationView.h"

#include "WelcomePanel.h"
#include "WindowBlending.h"

#include <QQmlComponent>
#include <QQuickWindow>

PresentationView::PresentationView(QQuickItem *parent)
    : QQuickItem(parent)
{
    connect(this, &PresentationView::isPresentingChanged, this, &PresentationView::schedulePresentation);
}

PresentationView::~PresentationView()
{
    dismiss(MainWindowAfterwards::LeftInPlace);
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
                connect(data.window, &QWindow::visibleChanged, this, &PresentationView::followWindow);
        }
        followWindow();
    }
}

// A closed window counts as no window, and an opened one as a new window.
void PresentationView::followWindow()
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
    if (m_mainWindow && !m_welcome) {
        show();
    }
}

void PresentationView::show()
{
    m_welcome.reset(qobject_cast<QQuickItem *>(m_content->create(m_content->creationContext())));
    m_welcome->setZ(1.0);
    if (m_surface == Surface::MainWindow) {
        m_welcome->setParentItem(m_mainWindow->contentItem());
        return;
    }
    m_panel = std::make_unique<WelcomePanel>(*m_mainWindow);
    m_welcome->setParentItem(m_panel->contentItem());
    // Without this the main window would stay invisible after the window manager closed the panel.
    connect(m_panel.get(), &WelcomePanel::closed, this, &PresentationView::finished);
    m_panel->show();
    m_panel->raise();
    m_panel->requestActivate();
}

// Deleted later, because it may be the sender of the signal that ends it; and at the latest with this view,
// because no event loop runs at the end of the program.
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
    if (m_welcome) {
        m_welcome->setVisible(false);
        release(std::move(m_welcome));
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
