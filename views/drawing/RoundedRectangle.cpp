#include "RoundedRectangle.h"

#include <QPainter>

#include <algorithm>

RoundedRectangle::RoundedRectangle(QQuickItem *parent)
    : PaintedImage(parent)
{
    connect(this, &RoundedRectangle::changed, this, &RoundedRectangle::repaint);
}

void RoundedRectangle::paint(QPainter *painter)
{
    const auto fill = [painter](const QRectF &rectangle, double radius, const QColor &color) {
        const double most = std::min(rectangle.width(), rectangle.height()) / 2.0;
        painter->setBrush(color);
        painter->drawRoundedRect(rectangle, std::min(radius, most), std::min(radius, most));
    };
    painter->setPen(Qt::NoPen);
    if (m_borderWidth > 0.0) {
        fill(boundingRect(), m_radius, m_borderColor);
        // The inside replaces the border's colour: under a translucent inside it would be seen.
        painter->setCompositionMode(QPainter::CompositionMode_Source);
    }
    const double inset = m_borderWidth;
    fill(boundingRect().adjusted(inset, inset, -inset, -inset), std::max(0.0, m_radius - inset), m_color);
}
