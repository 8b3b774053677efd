#include "ClickCursor.h"

#include <QCursor>

void ClickCursor::componentComplete()
{
    QQuickItem::componentComplete();
    updateCursor();
}

void ClickCursor::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemEnabledHasChanged || change == ItemVisibleHasChanged) {
        updateCursor();
    }
}

void ClickCursor::updateCursor()
{
    if (isEnabled() && isVisible()) {
        setCursor(Qt::PointingHandCursor);
    } else {
        unsetCursor();
    }
}
