#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/**
 * Shows the pointing hand over its bounds while it is enabled and visible, and takes it back the moment it is
 * not: a hand is never left behind. It takes no mouse events.
 *
 * A pointer handler's cursor would stay until the pointer moves when its control is disabled or hidden under
 * it.
 */
class ClickCursor : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QQuickItem::QQuickItem;

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void updateCursor();
};
