#pragma once

#include "MainWindowLayout.h"

#include <QObject>

class JobScheduler;
class QWindow;
class ScheduledJob;

/// Gives a window its saved frame each time it is shown, and saves the frame after the user moved or resized
/// the window, at the latest before it closes.
class MainWindowPlacement : public QObject
{
    Q_OBJECT

public:
    /// `window` must outlive this object.
    MainWindowPlacement(QWindow &window, MainWindowLayout layout, std::shared_ptr<JobScheduler> jobs);
    ~MainWindowPlacement() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class State {
        hidden,
        appearing, ///< shown; the decoration's size is not known yet
        exposed,   ///< to be placed in the next turn
        placed,    ///< from here on every change is the user's
    };

    void placeOneTurnLater();
    void scheduleSaving();
    void savePending();

    QWindow &m_window;
    MainWindowLayout m_layout;
    std::shared_ptr<JobScheduler> m_jobs;
    std::unique_ptr<ScheduledJob> m_pendingSave;
    State m_state = State::hidden;
};
