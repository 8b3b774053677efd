#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

/// A filled shape with blurred edges: a glow, or the shadow of what has the same shape.
///
/// The item is by itself larger than its shape by what the blur reaches on every side, with the shape in its
/// middle. It is drawn once and kept; moving, turning or fading it draws nothing anew.
class SoftShape : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QSizeF shapeSize MEMBER m_shapeSize NOTIFY shapeChanged)
    Q_PROPERTY(double cornerRadius MEMBER m_cornerRadius NOTIFY shapeChanged)
    Q_PROPERTY(double blurRadius MEMBER m_blurRadius NOTIFY shapeChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY shapeChanged)

public:
    explicit SoftShape(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void shapeChanged();

private:
    QSizeF m_shapeSize;
    double m_cornerRadius =
        0.0; ///< Points; what exceeds half a side makes that side an arc, on both axes an ellipse.
    double m_blurRadius = 0.0; ///< Standard deviation, in points.
    QColor m_color = Qt::black;
};
