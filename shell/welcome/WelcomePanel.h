#pragma once

#include <QQuickWindow>

/// The frameless, transparent window of the welcome. It covers the main window's frame, follows it, and takes
/// the keyboard's focus whenever the main window gets it.
class WelcomePanel : public QQuickWindow
{
    Q_OBJECT

public:
    /// `mainWindow` must outlive the panel.
    explicit WelcomePanel(QWindow &mainWindow);

Q_SIGNALS:
    /// The window manager was told to close it.
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void coverMainWindow();
    void takeFocus(const QWindow *focus);

    QWindow &m_mainWindow;
};
