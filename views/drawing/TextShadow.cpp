#include "TextShadow.h"

#include "GaussianBlur.h"

#include <QPainter>
#include <QQuickWindow>

TextShadow::TextShadow(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &TextShadow::shadowChanged, this, [this] {
        const double air = 2.0 * GaussianBlur::extent(m_blurRadius);
        setImplicitSize(m_textSize.width() + air, m_textSize.height() + air);
        update();
    });
}

void TextShadow::paint(QPainter *painter)
{
    const double ratio = window()->effectiveDevicePixelRatio();
    QImage mask((boundingRect().size() * ratio).toSize(), QImage::Format_Alpha8);
    mask.fill(Qt::transparent);
    {
        QPainter letters(&mask);
        letters.setRenderHint(QPainter::Antialiasing);
        letters.scale(ratio, ratio);
        letters.setFont(m_font);
        letters.drawText(boundingRect(), Qt::AlignCenter, m_text);
    }
    painter->drawImage(boundingRect(),
                       GaussianBlur::tinted(GaussianBlur::blurred(mask, m_blurRadius * ratio), m_color));
}
