#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/**
 * Shows the pointing hand over its bounds while it is enabled and visible, and takes no mouse events.
 *
 * The cursor of a pointer handler would stay until the pointer moves when its control is disabled or hidden
 * under it.
 */
class ClickCursor : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ClickCursor(QQuickItem *parent = nullptr);

private:
    void updateCursor();
};
