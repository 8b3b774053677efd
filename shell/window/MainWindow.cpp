#include "MainWindow.h"

#include "JobScheduler.h"
#include "MainWindowPlacement.h"

#include <QQmlComponent>
#include <QQuickWindow>

namespace {

std::unique_ptr<QQuickWindow> createWindow(QQmlEngine &engine, const QVariantMap &initialProperties)
{
    QQmlComponent component(
        &engine, QUrl(QStringLiteral("qrc:/qt-project.org/imports/Lumaport/Window/MainWindow.qml")));
    if (!component.isReady()) {
        // The file is part of the program: only a fault in the program leads here.
        qFatal("%s", qUtf8Printable(component.errorString()));
    }
    return std::unique_ptr<QQuickWindow>(
        qobject_cast<QQuickWindow *>(component.createWithInitialProperties(initialProperties)));
}

} // namespace

MainWindow::MainWindow(QQmlEngine &engine, const QVariantMap &initialProperties, MainWindowLayout layout,
                       std::shared_ptr<JobScheduler> jobs)
    : m_layout(layout)
    , m_window(createWindow(engine, initialProperties))
    , m_placement(std::make_unique<MainWindowPlacement>(*m_window, std::move(layout), std::move(jobs)))
{}

MainWindow::~MainWindow()
{
    // The end of the program closes no window. The placement saves the frame while the window is shown; then
    // the window is hidden before its content is destroyed, so that what it shows ends in order.
    m_placement.reset();
    m_window->hide();
}

void MainWindow::open()
{
    if (!m_window->isVisible()) {
        // The size of the decoration is not known yet: the placement corrects this frame once it is.
        m_layout.apply(*m_window, MainWindowLayout::SavedFrame::restore);
        m_window->show();
    } else if (m_window->windowStates().testFlag(Qt::WindowMinimized)) {
        m_window->setWindowStates(m_window->windowStates() & ~Qt::WindowMinimized);
    }
    m_window->raise();
    m_window->requestActivate();
}
