#pragma once

#include "BlurredItem.h"

#include <QFont>

/// The soft shadow of a line of text, which lies centred over it. `shapeSize` is the size of the text.
class TextShadow : public BlurredItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY changed)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed)

protected:
    void paintShape(QPainter &painter, double ratio) override;

private:
    QString m_text;
    QFont m_font;
};
