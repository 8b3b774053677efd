#include "Symbol.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace {

// The files are drawn on a square of 24 units with 2 to 3 units of air: so a symbol's body is a little taller
// than the capitals of the text beside it.
constexpr double boxPerPoint = 1.4;

QString symbolFile(const QString &name)
{
    return QStringLiteral(":/symbols/%1.svg").arg(name);
}

void paintTinted(QPainter &painter, const QString &name, const QColor &color, const QRectF &square)
{
    QSvgRenderer(symbolFile(name)).render(&painter, square);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(square, color);
}

} // namespace

Symbol::Symbol(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    updateImplicitSize();
}

void Symbol::setName(const QString &name)
{
    if (m_name != name) {
        m_name = name;
        Q_EMIT nameChanged();
        update();
    }
}

void Symbol::setColor(const QColor &color)
{
    if (m_color != color) {
        m_color = color;
        Q_EMIT colorChanged();
        update();
    }
}

void Symbol::setPointSize(double size)
{
    if (m_pointSize != size) {
        m_pointSize = size;
        updateImplicitSize();
        Q_EMIT pointSizeChanged();
        update();
    }
}

void Symbol::updateImplicitSize()
{
    const double side = std::round(m_pointSize * boxPerPoint);
    setImplicitSize(side, side);
}

void Symbol::paint(QPainter *painter)
{
    if (!QFile::exists(symbolFile(m_name))) {
        return;
    }
    const QRectF bounds = boundingRect();
    const double side = std::min(bounds.width(), bounds.height());
    QRectF square(0.0, 0.0, side, side);
    square.moveCenter(bounds.center());
    paintTinted(*painter, m_name, m_color, square);
}

QImage Symbol::image(const QString &name, const QColor &color, int pixels)
{
    if (!QFile::exists(symbolFile(name))) {
        return {};
    }
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintTinted(painter, name, color, QRectF(image.rect()));
    return image;
}
