#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// One of the program's symbols, in one colour. It is drawn from its vector file at the screen's own
/// resolution.
///
/// By itself it is as large as the symbol looks right beside text of `pointSize`; in another size it fills
/// the largest centred square. A name without a file draws nothing. It has no part in accessibility: its
/// owner speaks.
class Symbol : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(double pointSize READ pointSize WRITE setPointSize NOTIFY pointSizeChanged)

public:
    explicit Symbol(QQuickItem *parent = nullptr);

    QString name() const { return m_name; }
    QColor color() const { return m_color; }
    double pointSize() const { return m_pointSize; }

    void setName(const QString &name);
    void setColor(const QColor &color);
    void setPointSize(double size);

    void paint(QPainter *painter) override;

    /// The symbol as a picture of `pixels` square, for what is not drawn by a scene; null when there is
    /// none.
    static QImage image(const QString &name, const QColor &color, int pixels);

Q_SIGNALS:
    void nameChanged();
    void colorChanged();
    void pointSizeChanged();

private:
    void updateImplicitSize();

    QString m_name;
    QColor m_color = Qt::black;
    double m_pointSize = 12.0;
};
