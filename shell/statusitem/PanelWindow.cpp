#include "PanelWindow.h"

#include "JobScheduler.h"
#include "MenuBarViewController.h"
#include "PanelPlacement.h"
#include "PointerPresses.h"
#include "TaskBar.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include <utility>

using namespace std::chrono_literals;

namespace {

// Longer than a busy desktop takes to deliver a click.
constexpr auto sameClick = 1s;
// Some hosts tell only where the item was clicked, not where it is.
constexpr QMargins aroundItem{12, 12, 12, 12};

} // namespace

PanelWindow::PanelWindow(QQmlEngine &engine, MenuBarViewController &controller,
                         std::shared_ptr<JobScheduler> jobs)
    : QQuickView(&engine, nullptr)
    , m_jobs(std::move(jobs))
{
    setTitle(QStringLiteral("Lumaport Quick Panel"));
    setObjectName(QStringLiteral("panel"));
    // A popup window would not close on a click outside of the application. A tool window loses the focus.
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setResizeMode(QQuickView::SizeViewToRootObject);
    setInitialProperties({{QStringLiteral("controller"), QVariant::fromValue(&controller)}});
    setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Lumaport/StatusItem/MenuBarView.qml")));
    connect(this, &QWindow::heightChanged, this, &PanelWindow::moveToPlace);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &PanelWindow::followFocus);
}

PanelWindow::~PanelWindow() = default;

void PanelWindow::toggle(const std::optional<QRect> &item)
{
    if (isVisible()) {
        hide();
    } else {
        open(item);
    }
    m_justClosed.reset();
}

void PanelWindow::toggleByClick(const std::optional<QRect> &item)
{
    const bool mayBeSameClick = !item || item->marginsAdded(aroundItem).contains(m_closedFrom);
    if (!std::exchange(m_justClosed, {}) || !mayBeSameClick) {
        toggle(item);
    }
}

void PanelWindow::open(const std::optional<QRect> &item)
{
    m_item = item;
    m_hadFocus = false;
    moveToPlace();
    // A desktop may keep the focus from the panel: then only the press tells of a click elsewhere.
    m_presses = std::make_unique<PointerPresses>();
    connect(m_presses.get(), &PointerPresses::pressed, this, [this] {
        if (!geometry().contains(QCursor::pos())) {
            closeByClick();
        }
    });
    create();
    TaskBar::leaveOut(*this);
    show();
    raise();
    requestActivate();
}

void PanelWindow::moveToPlace()
{
    const QScreen *target = m_item ? QGuiApplication::screenAt(m_item->center()) : nullptr;
    if (target == nullptr) {
        target = QGuiApplication::focusWindow() != nullptr ? QGuiApplication::focusWindow()->screen()
                                                           : QGuiApplication::primaryScreen();
    }
    if (target != nullptr) {
        setPosition(PanelPlacement::place(size(), m_item, target->availableGeometry()).topLeft());
    }
}

void PanelWindow::followFocus(const QWindow *focus)
{
    if (focus == this) {
        m_hadFocus = true;
    } else if (m_hadFocus) {
        // Until the panel has had the focus it stays open: on the way to it, no window may have the focus.
        closeByClick();
    }
}

void PanelWindow::closeByClick()
{
    if (isVisible()) {
        hide();
        m_closedFrom = QCursor::pos();
        m_justClosed = m_jobs->after(sameClick, [this] { m_justClosed.reset(); });
    }
}

void PanelWindow::hideEvent(QHideEvent *event)
{
    m_presses.reset();
    QQuickView::hideEvent(event);
}

void PanelWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else {
        QQuickView::keyPressEvent(event);
    }
}
