#include "Symbol.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace {

// Each file is a square of 24 units with an empty margin of 2 to 3 units. At this size a symbol is a little
// taller than the capitals of the text beside it.
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
    connect(this, &Symbol::changed, this, &Symbol::follow);
    follow();
}

void Symbol::follow()
{
    if (!m_name.isEmpty() && !QFile::exists(symbolFile(m_name))) {
        qWarning("There is no symbol named \"%s\"", qPrintable(m_name));
    }
    const double side = std::round(m_pointSize * boxPerPoint);
    setImplicitSize(side, side);
    update();
}

void Symbol::paint(QPainter *painter)
{
    if (m_name.isEmpty()) {
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
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintTinted(painter, name, color, QRectF(image.rect()));
    return image;
}
