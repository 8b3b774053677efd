#pragma once

#include <QRect>

#include <optional>

/// Where the panel of the status item opens. Everything is in the desktop's device-independent pixels.
namespace PanelPlacement {

/// Kept between the panel and the status item, and between the panel and the edges of the screen.
inline constexpr int gap = 6;

/// Below the item, in its middle; above it where there is no room below, and never outside `available`. At
/// the top right without an item.
QRect place(const QSize &panel, const std::optional<QRect> &item, const QRect &available);

} // namespace PanelPlacement
