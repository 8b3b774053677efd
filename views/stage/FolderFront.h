#pragma once

#include "PaintedImage.h"

#include <QMatrix4x4>
#include <QtQml/qqmlregistration.h>

/// The front of the stage's folder, 239 x 108 points and a point of air around for its outline. It is painted
/// once; `tiltMatrix` leans it about its bottom edge.
class FolderFront : public PaintedImage
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double tilt MEMBER m_tilt NOTIFY tiltChanged)
    Q_PROPERTY(QMatrix4x4 tiltMatrix READ tiltMatrix NOTIFY tiltChanged)

public:
    explicit FolderFront(QQuickItem *parent = nullptr);

    /// From the item's flat plane to the screen, seen from as far away as the front is wide. Depth is left
    /// out: the scene has none, and would cut off what leaves its plane.
    QMatrix4x4 tiltMatrix() const;

Q_SIGNALS:
    void tiltChanged();

protected:
    void paint(QPainter *painter) override;

private:
    double m_tilt = 0.0; ///< degrees; negative turns the top edge towards the viewer
};
