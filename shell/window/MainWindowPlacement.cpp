#include "MainWindowPlacement.h"

#include "JobScheduler.h"

#include <QEvent>
#include <QWindow>

#include <utility>

using namespace std::chrono_literals;

namespace {

// A drag of the window's edge sends many changes; the last one is saved.
constexpr auto savingDelay = 400ms;

} // namespace

MainWindowPlacement::MainWindowPlacement(QWindow &window, MainWindowLayout layout,
                                         std::shared_ptr<JobScheduler> jobs)
    : m_window(window)
    , m_layout(std::move(layout))
    , m_jobs(std::move(jobs))
{
    m_window.installEventFilter(this);
}

MainWindowPlacement::~MainWindowPlacement()
{
    savePending();
}

bool MainWindowPlacement::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        m_state = State::appearing;
        break;
    case QEvent::Expose:
        placeOneTurnLater();
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
        if (m_state == State::placed) {
            scheduleSaving();
        }
        break;
    case QEvent::Close:
        savePending();
        break;
    case QEvent::Hide:
        m_state = State::hidden;
        m_pendingSave.reset();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void MainWindowPlacement::placeOneTurnLater()
{
    if (m_state != State::appearing || !m_window.isExposed()) {
        return;
    }
    m_state = State::exposed;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_state == State::exposed) {
                m_layout.apply(m_window, MainWindowLayout::SavedFrame::restore);
                m_state = State::placed;
            }
        },
        Qt::QueuedConnection);
}

void MainWindowPlacement::scheduleSaving()
{
    m_pendingSave = m_jobs->after(savingDelay, [this] { savePending(); });
}

void MainWindowPlacement::savePending()
{
    if (std::exchange(m_pendingSave, {})) {
        m_layout.save(m_window);
    }
}
