#pragma once

#include "PaintedImage.h"

#include <QMatrix4x4>
#include <QtQml/qqmlregistration.h>

/// The front of the stage's folder, 239 x 108 points and a margin of one point for its outline. It is
/// painted once; `tiltMatrix` turns it about its bottom edge.
class FolderFront : public PaintedImage
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double tilt MEMBER m_tilt NOTIFY tiltChanged)
    Q_PROPERTY(QMatrix4x4 tiltMatrix READ tiltMatrix NOTIFY tiltChanged)

public:
    explicit FolderFront(QQuickItem *parent = nullptr);

    /// From the item's plane to the screen, seen from a distance equal to the front's width. Depth is set to
    /// 0, because the scene clips what is not in its plane.
    QMatrix4x4 tiltMatrix() const;

Q_SIGNALS:
    void tiltChanged();

protected:
    void paint(QPainter *painter) override;

private:
    double m_tilt = 0.0; ///< degrees; negative turns the top edge towards the viewer
};
