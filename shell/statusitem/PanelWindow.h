#pragma once

#include <QQuickView>

#include <memory>
#include <optional>

class JobScheduler;
class MenuBarViewController;
class ScheduledJob;

/// The window of the status item's panel: as large as its view, without a frame, above the others. It closes
/// when the user clicks elsewhere, presses Escape or asks again.
class PanelWindow : public QQuickView
{
    Q_OBJECT

public:
    /// `controller` must outlive this window.
    PanelWindow(QQmlEngine &engine, MenuBarViewController &controller, std::shared_ptr<JobScheduler> jobs);
    ~PanelWindow() override;

    /// Opens the panel at the status item's place, or closes it.
    void toggle(const std::optional<QRect> &item);
    /// Does so for a click on the status item. When that same click has just closed the panel, by taking the
    /// focus from it, it does not open it again.
    void toggleByClick(const std::optional<QRect> &item);
    void dismiss();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void open(const std::optional<QRect> &item);
    void followFocus(const QWindow *focus);
    void moveToPlace();
    bool mayBeOnItem(const QPoint &pointer) const;

    std::shared_ptr<JobScheduler> m_jobs;
    std::unique_ptr<ScheduledJob> m_justLostFocus;
    std::optional<QRect> m_item;
    bool m_hadFocus = false;
};
