#pragma once

#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// The application's mark: its icon in a square of `size` points, hidden from accessibility.
class BrandMark : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double size READ size WRITE setSize NOTIFY sizeChanged)

public:
    using QQuickPaintedItem::QQuickPaintedItem;

    double size() const { return implicitWidth(); }
    void setSize(double size);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void sizeChanged();
};
