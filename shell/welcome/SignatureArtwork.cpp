#include "SignatureArtwork.h"

#include "ShippedFile.h"

#include <QLinearGradient>
#include <QPainter>
#include <QQuickWindow>

namespace {

// Shares of the frame's width.
constexpr double bandWidth = 0.24;
constexpr double bandTravel = 1.24;

constexpr double shimmerOpacity = 0.9;

} // namespace

SignatureArtwork::SignatureArtwork(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &SignatureArtwork::progressChanged, this, [this] { update(); });
    setSource(shippedFile(QStringLiteral("LumaportSignature.png")));
}

void SignatureArtwork::setSource(const QString &path)
{
    if (m_source != path) {
        m_source = path;
        m_image = path.isEmpty() ? QImage() : QImage(path);
        m_scaled = {};
        Q_EMIT sourceChanged();
        update();
    }
}

void SignatureArtwork::paint(QPainter *painter)
{
    const double ratio = window()->effectiveDevicePixelRatio();
    const QSize size = m_image.size().scaled((boundingRect().size() * ratio).toSize(), Qt::KeepAspectRatio);
    if (m_image.isNull() || size.isEmpty()) {
        return;
    }
    if (m_scaled.size() != size) {
        m_scaled = m_image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    QRectF place(QPointF(), QSizeF(size) / ratio);
    place.moveCenter(boundingRect().center());
    painter->setClipRect(QRectF(0.0, 0.0, width() * m_revealProgress, height()));
    painter->drawImage(place, m_scaled);
    painter->setClipping(false);
    if (m_shimmerProgress > 0.0 && m_shimmerProgress < 1.0) {
        painter->setOpacity(shimmerOpacity);
        painter->drawImage(place, shimmer(m_scaled, width() * ratio));
    }
}

QImage SignatureArtwork::shimmer(const QImage &artwork, double frameWidth) const
{
    const double inset = (frameWidth - artwork.width()) / 2.0;
    const double left = frameWidth * (bandTravel * m_shimmerProgress - bandWidth) - inset;
    const QRectF band(left, 0.0, frameWidth * bandWidth, artwork.height());
    QLinearGradient light(band.topLeft(), band.topRight());
    light.setColorAt(0.0, QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.0F));
    light.setColorAt(1.0 / 3.0, QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.9F));
    light.setColorAt(2.0 / 3.0, QColor::fromRgbF(0.33F, 0.75F, 0.94F, 0.5F));
    light.setColorAt(1.0, QColor::fromRgbF(0.33F, 0.75F, 0.94F, 0.0F));
    QImage picture(artwork.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.fillRect(band, light);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, artwork);
    return picture;
}
