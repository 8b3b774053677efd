#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <memory>

class QQmlComponent;
class WelcomePanel;

/// Shows the welcome while `isPresenting`.
///
/// Where the desktop blends windows, the main window becomes fully transparent and a panel over its frame
/// shows the welcome. Elsewhere the welcome covers the content of the main window.
class PresentationView : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isPresenting MEMBER m_isPresenting NOTIFY isPresentingChanged)
    Q_PROPERTY(Surface surface READ surface NOTIFY surfaceChanged)
    Q_PROPERTY(QQmlComponent *content MEMBER m_content FINAL)

public:
    enum class Surface { Panel, MainWindow };
    Q_ENUM(Surface)
    enum class MainWindowAfterwards { BroughtForward, LeftInPlace };

    explicit PresentationView(QQuickItem *parent = nullptr);
    ~PresentationView() override;

    /// Where the present welcome, or the last one, is shown.
    Surface surface() const { return m_surface; }
    /// Where the next one is shown, whether or not the desktop blends windows.
    void setSurface(Surface surface) { m_chosenSurface = surface; }

    /// Hides the main window at once if the welcome begins. The welcome itself begins or ends one turn later.
    void schedulePresentation();
    /// Ends the welcome, if there is one, and shows the main window again.
    void dismiss(MainWindowAfterwards showMainWindow);

Q_SIGNALS:
    void isPresentingChanged();
    void surfaceChanged();
    /// The user finished the welcome.
    void finished();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QQuickWindow *shownWindow() const;
    void followWindow();
    void hideMainWindow();
    void updatePresentation();
    void show();
    void release(std::unique_ptr<QObject> ended);

    bool m_isPresenting = false;
    Surface m_surface = Surface::MainWindow;
    std::optional<Surface> m_chosenSurface;
    QQmlComponent *m_content = nullptr;
    QPointer<QQuickWindow> m_mainWindow; ///< while the welcome is presented
    double m_originalOpacity = 1.0;      ///< the main window's, before it was hidden
    std::unique_ptr<WelcomePanel> m_panel;
    std::unique_ptr<QQuickItem> m_welcome;
    QMetaObject::Connection m_visibility; ///< of the window that the view is in
};
