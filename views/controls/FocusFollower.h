#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Scrolls a Flickable vertically to the control in it that gets the keyboard's focus. When that control is
/// disabled, hidden or removed, the control before it gets the focus.
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
    void scrollTo(const QQuickItem &focused);
    void passOn();
    bool holds(const QQuickItem *item) const;

    QPointer<QQuickItem> m_flickable;
    QPointer<QQuickItem> m_before;                   ///< what is before the control that has or had the focus
    Qt::FocusReason m_reason = Qt::OtherFocusReason; ///< why that control got it
    QMetaObject::Connection m_connection;
};
