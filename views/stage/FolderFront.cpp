#include "FolderFront.h"

#include "LumaportPalette.h"

#include <QLinearGradient>
#include <QPainter>

#include <array>

namespace {

constexpr QSizeF frontSize(239.0, 108.0);
constexpr double margin = 1.0;
constexpr double cornerRadius = 19.0;
constexpr QRectF handle((239.0 - 75.0) / 2.0, 10.0, 75.0, 2.0);
/// The tilt enlarges the front's top edge.
constexpr int oversampling = 2;

} // namespace

FolderFront::FolderFront(QQuickItem *parent)
    : PaintedImage(parent)
{
    const QSizeF size = frontSize + 2.0 * QSizeF(margin, margin);
    setImplicitSize(size.width(), size.height());
    setOversampling(oversampling);
}

QMatrix4x4 FolderFront::tiltMatrix() const
{
    const auto hingeX = static_cast<float>(margin + frontSize.width() / 2.0);
    const auto hingeY = static_cast<float>(margin + frontSize.height());
    QMatrix4x4 matrix;
    matrix.translate(hingeX, hingeY);
    matrix.scale(1.0F, 1.0F, 0.0F);
    QMatrix4x4 perspective;
    perspective(3, 2) = -1.0F / static_cast<float>(std::max(frontSize.width(), frontSize.height()));
    matrix *= perspective;
    QMatrix4x4 rotation;
    rotation.rotate(static_cast<float>(m_tilt), 1.0F, 0.0F, 0.0F);
    matrix *= rotation;
    matrix.translate(-hingeX, -hingeY);
    return matrix;
}

void FolderFront::paint(QPainter *painter)
{
    painter->translate(margin, margin);
    const QRectF front(QPointF(), frontSize);
    QLinearGradient fill(front.topLeft(), front.bottomRight());
    fill.setColorAt(0.0, QColor::fromRgbF(0.53F, 0.77F, 1.0F, 0.93F));
    fill.setColorAt(1.0, LumaportPalette::cobalt());
    const QColor line = QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.55F);
    painter->setBrush(fill);
    painter->setPen(Qt::NoPen);
    painter->drawRoundedRect(front, cornerRadius, cornerRadius);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(line, 1.0));
    painter->drawRoundedRect(front, cornerRadius, cornerRadius);
    painter->setPen(Qt::NoPen);
    painter->setBrush(line);
    painter->drawRoundedRect(handle, handle.height() / 2.0, handle.height() / 2.0);
}
