#include "FilledItem.h"

#include <QQuickItem>

void keepFilled(QQuickItem &place, QQuickItem &content)
{
    const auto fill = [&place, &content] { content.setSize(place.size()); };
    content.setParentItem(&place);
    QObject::connect(&place, &QQuickItem::widthChanged, &content, fill);
    QObject::connect(&place, &QQuickItem::heightChanged, &content, fill);
    fill();
}
