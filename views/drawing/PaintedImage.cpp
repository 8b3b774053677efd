#include "PaintedImage.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

namespace {

/// Transparent pixels on every side, for the edges of a turned picture.
constexpr int margin = 1;

} // namespace

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
    const auto pixels = [scale](qreal points) { return qCeil(points * scale) + 2 * margin; };
    QImage image(pixels(width()), pixels(height()), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(margin / scale, margin / scale);
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
        const QImage image = painted();
        shown->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel));
        // Pixel for pixel, so that nothing is scaled.
        const qreal outside = margin / image.devicePixelRatio();
        shown->setRect(QRectF({-outside, -outside}, image.deviceIndependentSize()));
        m_isStale = false;
    }
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
