#include "PanelPlacement.h"

#include <algorithm>

QRect PanelPlacement::place(const QSize &panel, const std::optional<QRect> &item, const QRect &available)
{
    const QRect area = available.marginsRemoved({gap, gap, gap, gap});
    const int lastX = area.right() - panel.width() + 1;
    const int lastY = area.bottom() - panel.height() + 1;
    QPoint corner(lastX, area.top());
    if (item) {
        const int below = item->bottom() + 1 + gap;
        const int above = item->top() - gap - panel.height();
        corner = {item->center().x() - panel.width() / 2, below <= lastY ? below : above};
    }
    return {QPoint(std::max(area.left(), std::min(lastX, corner.x())),
                   std::max(area.top(), std::min(lastY, corner.y()))),
            panel};
}
