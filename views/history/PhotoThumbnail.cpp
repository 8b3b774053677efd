#include "PhotoThumbnail.h"

#include "LumaportPalette.h"
#include "Symbol.h"
#include "ThumbnailStore.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double placeholderPadding = 20.0;  // points on every side
constexpr double smallestPlaceholder = 10.0; // points; a smaller one cannot be recognised

QBrush gradient(int variant, const QRectF &frame)
{
    const bool isWarm = variant % 2 != 0;
    QLinearGradient gradient(frame.topLeft(), frame.bottomRight());
    gradient.setColorAt(0.0,
                        isWarm ? QColor::fromRgbF(1.0F, 0.79F, 0.59F) : QColor::fromRgbF(0.58F, 0.8F, 1.0F));
    gradient.setColorAt(1.0, isWarm ? LumaportPalette::coral() : LumaportPalette::cobalt());
    return gradient;
}

// The middle part of `image` that has the frame's proportions.
QRectF fillingPart(const QImage &image, const QRectF &frame)
{
    const QSizeF part = frame.size().scaled(image.size(), Qt::KeepAspectRatio);
    QRectF source(QPointF(), part);
    source.moveCenter(QRectF(image.rect()).center());
    return source;
}

void paintPlaceholder(QPainter &painter, const QRectF &frame)
{
    const double side = std::min(frame.width(), frame.height()) - 2 * placeholderPadding;
    if (side < smallestPlaceholder) {
        return;
    }
    const int pixels = qCeil(side * painter.deviceTransform().m11());
    QRectF square(0.0, 0.0, side, side);
    square.moveCenter(frame.center());
    painter.setOpacity(0.75);
    painter.drawImage(square, Symbol::image(QStringLiteral("mountain.2.fill"), Qt::white, pixels));
}

} // namespace

PhotoThumbnail::PhotoThumbnail(QQuickItem *parent)
    : PaintedImage(parent)
{
    connect(this, &PhotoThumbnail::frameChanged, this, &PhotoThumbnail::repaint);
}

PhotoThumbnail::~PhotoThumbnail() = default;

void PhotoThumbnail::setUrl(const QUrl &url)
{
    if (m_url == url) {
        return;
    }
    m_url = url;
    m_request.reset();
    setImage({});
    Q_EMIT urlChanged();
    if (!url.isEmpty()) {
        m_request = ThumbnailStore::shared().image(url, [this](const QImage &image) { setImage(image); });
    }
}

void PhotoThumbnail::setImage(const QImage &image)
{
    const bool wasLoaded = isLoaded();
    m_image = image;
    repaint();
    if (wasLoaded != isLoaded()) {
        Q_EMIT loadedChanged();
    }
}

void PhotoThumbnail::paint(QPainter *painter)
{
    const QRectF frame = boundingRect();
    QPainterPath outline;
    outline.addRoundedRect(frame, m_cornerRadius, m_cornerRadius);
    if (m_image.isNull()) {
        painter->fillPath(outline, gradient(m_variant, frame));
        paintPlaceholder(*painter, frame);
        return;
    }
    // A brush does not scale smoothly below half size, so the part is first scaled to the screen's pixels.
    const QSize pixels = (frame.size() * painter->deviceTransform().m11()).toSize();
    QImage scaled = m_image.copy(fillingPart(m_image, frame).toAlignedRect())
                        .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    // The gradient shows where the picture is transparent. The outline is filled once: filled twice, the
    // gradient would be seen along the antialiased corners.
    QPainter behind(&scaled);
    behind.setCompositionMode(QPainter::CompositionMode_DestinationOver);
    behind.fillRect(scaled.rect(), gradient(m_variant, scaled.rect()));
    behind.end();
    QBrush brush(scaled);
    brush.setTransform(QTransform::fromTranslate(frame.x(), frame.y())
                           .scale(frame.width() / scaled.width(), frame.height() / scaled.height()));
    painter->fillPath(outline, brush);
}
