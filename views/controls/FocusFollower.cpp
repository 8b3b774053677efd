#include "FocusFollower.h"

#include <QQuickWindow>

namespace {

constexpr double margin = 12.0; // points kept free around the control

/// False for the group that has the focus when none of its controls has it.
bool isControl(const QQuickItem *focused)
{
    return focused && (!focused->isFocusScope() || focused->activeFocusOnTab());
}

} // namespace

void FocusFollower::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange) {
        disconnect(m_connection);
        if (data.window) {
            m_connection =
                connect(data.window, &QQuickWindow::activeFocusItemChanged, this, &FocusFollower::follow);
        }
    }
}

void FocusFollower::follow()
{
    QQuickItem *focused = window()->activeFocusItem();
    if (!isControl(focused)) {
        // Later, because more controls may be about to end.
        QMetaObject::invokeMethod(this, &FocusFollower::passOn, Qt::QueuedConnection);
        return;
    }
    m_before.clear();
    if (holds(focused)) {
        m_before = focused->nextItemInFocusChain(false);
        m_reason = focused->property("focusReason").value<Qt::FocusReason>();
        scrollTo(*focused);
    }
}

void FocusFollower::passOn()
{
    QQuickItem *next = m_before;
    if (!next || !window() || isControl(window()->activeFocusItem())) {
        return;
    }
    if (!next->isVisible() || !next->isEnabled()) {
        next = next->nextItemInFocusChain(false);
    }
    if (holds(next) && next->isVisible() && next->isEnabled()) {
        next->forceActiveFocus(m_reason);
    }
}

bool FocusFollower::holds(const QQuickItem *item) const
{
    const auto *content = m_flickable ? m_flickable->property("contentItem").value<QQuickItem *>() : nullptr;
    return item && content && content->isAncestorOf(item);
}

void FocusFollower::scrollTo(const QQuickItem &focused)
{
    const auto *content = m_flickable->property("contentItem").value<QQuickItem *>();
    const QRectF control = focused.mapRectToItem(content, QRectF(0, 0, focused.width(), focused.height()));
    const double top = m_flickable->property("contentY").toDouble();
    const double bottom = top + m_flickable->height();
    double wanted = top;
    if (control.top() - margin < top) {
        wanted = std::max(0.0, control.top() - margin);
    } else if (control.bottom() + margin > bottom) {
        const double last = m_flickable->property("contentHeight").toDouble() - m_flickable->height();
        wanted = std::min(last, control.bottom() + margin - m_flickable->height());
    }
    m_flickable->setProperty("contentY", wanted);
}
