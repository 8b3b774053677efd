#include "ClickCursor.h"

#include <QCursor>

ClickCursor::ClickCursor(QQuickItem *parent)
    : QQuickItem(parent)
{
    connect(this, &QQuickItem::enabledChanged, this, &ClickCursor::updateCursor);
    connect(this, &QQuickItem::visibleChanged, this, &ClickCursor::updateCursor);
    updateCursor();
}

void ClickCursor::updateCursor()
{
    if (isEnabled() && isVisible()) {
        setCursor(Qt::PointingHandCursor);
    } else {
        unsetCursor();
    }
}
