#include "TextShadow.h"

#include <QPainter>

void TextShadow::paintShape(QPainter &painter, double ratio)
{
    painter.scale(ratio, ratio);
    painter.setFont(m_font);
    painter.drawText(boundingRect(), Qt::AlignCenter, m_text);
}
