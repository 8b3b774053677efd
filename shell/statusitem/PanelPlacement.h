#pragma once

#include <QRect>

#include <optional>

/// Where the panel of the status item opens, in the desktop's device-independent pixels.
namespace PanelPlacement {

/// Least distance of the panel from the status item and from the edges of the screen.
inline constexpr int gap = 6;

/// Centred below the item, or above it where there is no room below; at the top right without an item. Always
/// inside `available`, as far as the panel fits.
QRect place(const QSize &panel, const std::optional<QRect> &item, const QRect &available);

} // namespace PanelPlacement
