#include "SoftShape.h"

#include <QPainter>

void SoftShape::paintShape(QPainter &painter, double ratio)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    QRectF rectangle(QPointF(), shapeSize() * ratio);
    rectangle.moveCenter(QRectF(painter.window()).center());
    const double radius = m_cornerRadius * ratio;
    painter.drawRoundedRect(rectangle, std::min(radius, rectangle.width() / 2.0),
                            std::min(radius, rectangle.height() / 2.0));
}
