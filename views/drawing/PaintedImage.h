#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QPainter;

/// An item that is painted into a picture, which the scene then shows. Unlike other painted items it stays
/// smooth when it is rotated or tilted, on every renderer.
class PaintedImage : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit PaintedImage(QQuickItem *parent = nullptr);

protected:
    /// In points, from the item's top left corner; antialiased.
    virtual void paint(QPainter *painter) = 0;

    /// Has it painted again before the next frame.
    void repaint();
    /// Pixels of the picture for a pixel of the screen, in each direction; 1 unless set.
    void setOversampling(int factor) { m_oversampling = factor; }

    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QImage painted();

    int m_oversampling = 1;
    bool m_isStale = true;
};
