#pragma once

#include <QColor>
#include <QImage>
#include <QList>

/// A symbol in the sizes that desktop panels ask for, 16 to 64 pixels.
///
/// Panels are light or dark, and none tells which: the colour is the grey that keeps a contrast of 3:1 or
/// more (WCAG 2.1, 1.4.11) to both. A themed icon name that panels tint themselves is not given: those that
/// do not would show it black on dark.
namespace TemplateImages {

inline constexpr QColor tint{0x80, 0x80, 0x80};

QList<QImage> forSymbol(const QString &name);

} // namespace TemplateImages
