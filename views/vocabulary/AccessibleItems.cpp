#include "AccessibleItems.h"

#include <QAccessible>

#ifdef LUMAPORT_QT_HIDES_DISABLED
#include <QtQuick/private/qaccessiblequickitem_p.h>
#include <QtQuick/private/qquickitem_p.h>

namespace {

class Item : public QAccessibleQuickItem
{
public:
    explicit Item(QQuickItem *item)
        : QAccessibleQuickItem(item)
    {
        QObject::connect(item, &QQuickItem::enabledChanged, item, [item] {
            QAccessible::State changed;
            changed.disabled = true;
            QAccessibleStateChangeEvent event(item, changed);
            QAccessible::updateAccessibility(&event);
        });
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleQuickItem::state();
        state.disabled = !item()->isEnabled();
        return state;
    }
};

QAccessibleInterface *accessibleItem(const QString & /*className*/, QObject *object)
{
    auto *item = qobject_cast<QQuickItem *>(object);
    return item && QQuickItemPrivate::get(item)->isAccessible ? new Item(item) : nullptr;
}

} // namespace
#endif

void AccessibleItems::install()
{
#ifdef LUMAPORT_QT_HIDES_DISABLED
    QAccessible::installFactory(accessibleItem);
#endif
}

void AccessibleItems::fallSilent()
{
    QAccessible::installUpdateHandler([](QAccessibleEvent *) {});
}
