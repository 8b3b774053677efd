#pragma once

#include <QImage>

/// Soft edges for shadows and glows, drawn on the processor so that they look the same with every scene
/// graph.
namespace GaussianBlur {

/// How far, in the unit of `radius`, a blur reaches beyond what is blurred.
double extent(double radius);

/// The coverage in `mask` (Format_Alpha8) blurred by a Gaussian whose standard deviation is `radius` pixels.
/// Pixels outside of the mask count as empty: it needs an empty margin of `extent(radius)` on every side.
QImage blurred(const QImage &mask, double radius);

/// A picture of `color` where `mask` covers: premultiplied, as large as the mask.
QImage tinted(const QImage &mask, const QColor &color);

} // namespace GaussianBlur
