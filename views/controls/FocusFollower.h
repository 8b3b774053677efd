#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Scrolls a Flickable vertically to the control in it that gets the keyboard's focus.
class FocusFollower : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *flickable MEMBER m_flickable NOTIFY flickableChanged REQUIRED)

public:
    using QQuickItem::QQuickItem;

Q_SIGNALS:
    void flickableChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void follow();

    QPointer<QQuickItem> m_flickable;
    QMetaObject::Connection m_connection;
};
