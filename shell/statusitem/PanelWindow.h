#pragma once

#include <QQuickView>

#include <memory>
#include <optional>

class JobScheduler;
class MenuBarViewController;
class PointerPresses;
class ScheduledJob;

/// The window of the status item's panel: frameless, as large as its view, above other windows. It closes
/// when the user clicks elsewhere, presses Escape, or asks for the panel again.
class PanelWindow : public QQuickView
{
    Q_OBJECT

public:
    /// `controller` must outlive this window.
    PanelWindow(QQmlEngine &engine, MenuBarViewController &controller, std::shared_ptr<JobScheduler> jobs);
    ~PanelWindow() override;

    /// Opens the panel at the status item's place, or closes it.
    void toggle(const std::optional<QRect> &item);
    /// The same for a click on the status item. A click that has just closed the panel does not open it
    /// again.
    void toggleByClick(const std::optional<QRect> &item);

protected:
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void open(const std::optional<QRect> &item);
    void followFocus(const QWindow *focus);
    void closeByClick();
    void moveToPlace();

    std::shared_ptr<JobScheduler> m_jobs;
    std::unique_ptr<PointerPresses> m_presses; ///< while the panel is open
    std::unique_ptr<ScheduledJob> m_justClosed;
    QPoint m_closedFrom; ///< where the pointer was then
    std::optional<QRect> m_item;
    bool m_hadFocus = false;
};
