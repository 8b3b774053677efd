#pragma once

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// The soft shadow of a line of text. It lies behind the text, centred on it; like a SoftShape it is larger
/// than what it is the shadow of, and drawn once.
class TextShadow : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY shadowChanged)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY shadowChanged)
    Q_PROPERTY(QSizeF textSize MEMBER m_textSize NOTIFY shadowChanged)
    Q_PROPERTY(double blurRadius MEMBER m_blurRadius NOTIFY shadowChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY shadowChanged)

public:
    explicit TextShadow(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void shadowChanged();

private:
    QString m_text;
    QFont m_font;
    QSizeF m_textSize;         ///< Points that the text takes.
    double m_blurRadius = 0.0; ///< Standard deviation, in points.
    QColor m_color = Qt::black;
};
