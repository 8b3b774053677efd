#include "FocusFollower.h"

#include <QQuickWindow>

namespace {

constexpr double margin = 12.0; // points kept free around the control

}

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
    const QQuickItem *focused = window()->activeFocusItem();
    auto *content = m_flickable ? m_flickable->property("contentItem").value<QQuickItem *>() : nullptr;
    if (!focused || !content || !content->isAncestorOf(focused)) {
        return;
    }
    const QRectF control = focused->mapRectToItem(content, QRectF(0, 0, focused->width(), focused->height()));
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
