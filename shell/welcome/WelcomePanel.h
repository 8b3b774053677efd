#pragma once

#include <QQuickWindow>

#include <memory>

/// The frameless, transparent window of the welcome. It lies over the main window's frame, follows it,
/// and takes the keyboard's focus whenever the main window gets it.
class WelcomePanel : public QQuickWindow
{
    Q_OBJECT

public:
    explicit WelcomePanel(QWindow &mainWindow);

    /// Fills the panel with `content` and owns it from now on.
    void setContent(std::unique_ptr<QQuickItem> content);

Q_SIGNALS:
    /// The window manager was told to close it.
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void coverMainWindow();
    void standInForMainWindow(const QWindow *focus);

    QWindow &m_mainWindow;
    std::unique_ptr<QQuickItem> m_content;
};
