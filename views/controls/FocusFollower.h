#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Scrolls a Flickable upright so that the control that gets the keyboard's focus within it can be seen.
class FocusFollower : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *flickable READ flickable WRITE setFlickable NOTIFY flickableChanged REQUIRED)

public:
    using QQuickItem::QQuickItem;

    QQuickItem *flickable() const { return m_flickable; }
    void setFlickable(QQuickItem *flickable);

Q_SIGNALS:
    void flickableChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void follow();

    QPointer<QQuickItem> m_flickable;
    QMetaObject::Connection m_connection;
};
