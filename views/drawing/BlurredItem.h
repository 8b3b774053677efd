#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

/// An item that draws one blurred shape in one colour.
///
/// The shape lies in the middle of the item. The item's implicit size leaves room for the blur on every side.
/// The shape is drawn once; when the item moves, turns or fades nothing is drawn again.
class BlurredItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QSizeF shapeSize MEMBER m_shapeSize NOTIFY changed)
    Q_PROPERTY(double blurRadius MEMBER m_blurRadius NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit BlurredItem(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) final;

Q_SIGNALS:
    void changed();

protected:
    QSizeF shapeSize() const { return m_shapeSize; }

    /// Draws the sharp shape, in an opaque colour, in the middle of the painter's window. The painter's unit
    /// is a pixel; `ratio` is the number of pixels for a point.
    virtual void paintShape(QPainter &painter, double ratio) = 0;

private:
    QSizeF m_shapeSize;        ///< points
    double m_blurRadius = 0.0; ///< standard deviation, in points
    QColor m_color = Qt::black;
};
