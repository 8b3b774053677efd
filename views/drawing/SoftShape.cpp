#include "SoftShape.h"

#include "GaussianBlur.h"

#include <QPainter>
#include <QQuickWindow>

SoftShape::SoftShape(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &SoftShape::shapeChanged, this, [this] {
        const double air = 2.0 * GaussianBlur::extent(m_blurRadius);
        setImplicitSize(m_shapeSize.width() + air, m_shapeSize.height() + air);
        update();
    });
}

void SoftShape::paint(QPainter *painter)
{
    if (m_shapeSize.isEmpty()) {
        return;
    }
    const double ratio = window()->effectiveDevicePixelRatio();
    const QSizeF size = boundingRect().size() * ratio;
    QImage mask(size.toSize(), QImage::Format_Alpha8);
    mask.fill(Qt::transparent);
    {
        QPainter shape(&mask);
        shape.setRenderHint(QPainter::Antialiasing);
        shape.setPen(Qt::NoPen);
        shape.setBrush(Qt::black);
        QRectF rectangle(QPointF(), m_shapeSize * ratio);
        rectangle.moveCenter(QRectF(mask.rect()).center());
        shape.drawRoundedRect(rectangle, std::min(m_cornerRadius * ratio, rectangle.width() / 2.0),
                              std::min(m_cornerRadius * ratio, rectangle.height() / 2.0));
    }
    painter->drawImage(boundingRect(),
                       GaussianBlur::tinted(GaussianBlur::blurred(mask, m_blurRadius * ratio), m_color));
}
