#pragma once

#include "MainWindowLayout.h"

#include <QVariantMap>

#include <memory>

class JobScheduler;
class MainWindowPlacement;
class QQmlEngine;
class QQuickWindow;

/// The one main window. Closing hides it, and opening shows the same window again.
class MainWindow
{
public:
    /// `initialProperties` are those that MainWindow.qml requires. `engine` must outlive the window.
    MainWindow(QQmlEngine &engine, const QVariantMap &initialProperties, MainWindowLayout layout,
               std::shared_ptr<JobScheduler> jobs);
    ~MainWindow();

    /// Shows the window at its saved frame, and brings it to the front.
    void open();

private:
    MainWindowLayout m_layout;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<MainWindowPlacement> m_placement;
};
