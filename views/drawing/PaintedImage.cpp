#include "PaintedImage.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

PaintedImage::PaintedImage(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void PaintedImage::repaint()
{
    m_isStale = true;
    update();
}

QImage PaintedImage::painted()
{
    const qreal scale = window()->effectiveDevicePixelRatio() * m_oversampling;
    QImage image((size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paint(&painter);
    return image;
}

QSGNode *PaintedImage::updatePaintNode(QSGNode *node, UpdatePaintNodeData * /*data*/)
{
    auto *shown = static_cast<QSGImageNode *>(node);
    if (size().isEmpty()) {
        delete shown;
        return nullptr;
    }
    if (shown == nullptr) {
        shown = window()->createImageNode();
        shown->setOwnsTexture(true);
        shown->setFiltering(QSGTexture::Linear);
        m_isStale = true;
    }
    if (m_isStale) {
        shown->setTexture(window()->createTextureFromImage(painted(), QQuickWindow::TextureHasAlphaChannel));
        m_isStale = false;
    }
    shown->setRect(boundingRect());
    return shown;
}

void PaintedImage::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        repaint();
    }
}

void PaintedImage::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged) {
        repaint();
    }
}
