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
    BrandAssets::icon().paint(painter, boundingRect().toAlignedRect());
}
