#pragma once

#include "BlurredItem.h"

/// A filled rectangle or ellipse with blurred edges: a glow, or the shadow of an item of the same shape.
class SoftShape : public BlurredItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double cornerRadius MEMBER m_cornerRadius NOTIFY changed)

protected:
    void paintShape(QPainter &painter, double ratio) override;

private:
    double m_cornerRadius = 0.0; ///< points; at most half of each side, which on both axes gives an ellipse
};
