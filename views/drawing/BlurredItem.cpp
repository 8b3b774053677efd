#include "BlurredItem.h"

#include "GaussianBlur.h"

#include <QPainter>
#include <QQuickWindow>

BlurredItem::BlurredItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &BlurredItem::changed, this, [this] {
        const double margin = 2.0 * GaussianBlur::extent(m_blurRadius);
        setImplicitSize(m_shapeSize.width() + margin, m_shapeSize.height() + margin);
        update();
    });
}

void BlurredItem::paint(QPainter *painter)
{
    if (m_shapeSize.isEmpty()) {
        return;
    }
    const double ratio = window()->effectiveDevicePixelRatio();
    QImage mask((boundingRect().size() * ratio).toSize(), QImage::Format_Alpha8);
    mask.fill(Qt::transparent);
    QPainter shape(&mask);
    shape.setRenderHint(QPainter::Antialiasing);
    paintShape(shape, ratio);
    shape.end();
    painter->drawImage(boundingRect(),
                       GaussianBlur::tinted(GaussianBlur::blurred(mask, m_blurRadius * ratio), m_color));
}
