#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// One of the program's symbols, in one colour. It is drawn from its vector file at the screen's own
/// resolution.
///
/// By itself it is as large as the symbol looks right beside text of `pointSize`; in another size it fills
/// the largest centred square. A name without a file draws nothing and gives a warning. It has no part in
/// accessibility: the item around it has the name for a screen reader.
class Symbol : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(double pointSize MEMBER m_pointSize NOTIFY changed)

public:
    explicit Symbol(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

    /// The symbol as a picture of `pixels` square, for what is not drawn by a scene.
    static QImage image(const QString &name, const QColor &color, int pixels);

Q_SIGNALS:
    void changed();

private:
    void follow();

    QString m_name;
    QColor m_color = Qt::black;
    double m_pointSize = 12.0;
};
