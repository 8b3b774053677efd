#include "BrandMark.h"

#include "BrandAssets.h"

#include <QPainter>

void BrandMark::setSize(double size)
{
    if (this->size() != size) {
        setImplicitSize(size, size);
        Q_EMIT sizeChanged();
        update();
    }
}

void BrandMark::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize pixels = painter->deviceTransform().mapRect(boundingRect()).size().toSize();
    const QPixmap icon = BrandAssets::icon().pixmap(pixels, 1.0);
    painter->drawPixmap(boundingRect(), icon, icon.rect());
}
