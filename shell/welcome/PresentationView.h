#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <memory>

class QQmlComponent;
class WelcomePanel;

/// The bridge between the main view, which says whether the welcome is presented, and the windows.
///
/// Where the desktop blends windows, the main window becomes fully transparent and a panel over its frame
/// shows the welcome. Elsewhere the welcome lies inside of the main window, over all of it.
class PresentationView : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isPresenting READ isPresenting WRITE setIsPresenting NOTIFY isPresentingChanged)
    Q_PROPERTY(Surface surface READ surface NOTIFY surfaceChanged)
    Q_PROPERTY(QQmlComponent *content MEMBER m_content NOTIFY contentChanged)

public:
    enum class Surface { Panel, MainWindow };
    Q_ENUM(Surface)
    enum class MainWindowAfterwards { BroughtForward, LeftInPlace };

    explicit PresentationView(QQuickItem *parent = nullptr);
    ~PresentationView() override;

    bool isPresenting() const { return m_isPresenting; }
    void setIsPresenting(bool presenting);
    /// Where the welcome of now, or the last one, is shown.
    Surface surface() const { return m_surface; }
    /// Where the next one is shown, whatever the desktop can do.
    void setSurface(Surface surface) { m_chosenSurface = surface; }

    /// Hides the main window at once when that is due; what else has to happen does so one turn later.
    void schedulePresentation();
    /// Ends the welcome, if there is one, and gives the main window back.
    void dismiss(MainWindowAfterwards showMainWindow);

Q_SIGNALS:
    void isPresentingChanged();
    void surfaceChanged();
    void contentChanged();
    /// The user finished the welcome.
    void finished();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QQuickWindow *shownWindow() const;
    void viewDidMoveToWindow();
    void hideMainWindow();
    void updatePresentation();
    void showInPanel(std::unique_ptr<QQuickItem> welcome);
    void showInMainWindow(std::unique_ptr<QQuickItem> welcome);
    void release(std::unique_ptr<QObject> ended);

    bool m_isPresenting = false;
    Surface m_surface = Surface::MainWindow;
    std::optional<Surface> m_chosenSurface;
    QQmlComponent *m_content = nullptr;
    QPointer<QQuickWindow> m_mainWindow; ///< while the welcome is presented
    double m_originalOpacity = 1.0;      ///< the main window's, before it was hidden
    std::unique_ptr<WelcomePanel> m_panel;
    std::unique_ptr<QQuickItem> m_overlay;
    QMetaObject::Connection m_visibility; ///< of the window that the view is in
};
