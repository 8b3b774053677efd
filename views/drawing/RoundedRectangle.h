#pragma once

#include "PaintedImage.h"

#include <QColor>

/// A rectangle with round corners. On the software renderer those of Qt Quick's own do not fit its sides when
/// the radius is not a whole number of pixels, or the rectangle is scaled.
///
/// All of it is painted again when its size changes. What fills the window and grows with it is therefore
/// better drawn by Qt Quick, with a radius of whole pixels.
class RoundedRectangle : public PaintedImage
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor borderColor MEMBER m_borderColor NOTIFY changed)
    Q_PROPERTY(double borderWidth MEMBER m_borderWidth NOTIFY changed)
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)

public:
    explicit RoundedRectangle(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    void paint(QPainter *painter) override;

private:
    QColor m_color = Qt::white;
    QColor m_borderColor = Qt::transparent;
    double m_borderWidth = 0.0; ///< points, inside of the rectangle
    double m_radius = 0.0;      ///< points; at most half of the shorter side takes effect
};
