#include "PanelPlacement.h"

#include "ScreenArea.h"

QRect PanelPlacement::place(const QSize &panel, const std::optional<QRect> &item, const QRect &available)
{
    const QRect area = available.marginsRemoved({gap, gap, gap, gap});
    QRect frame(QPoint(), panel);
    if (!item) {
        frame.moveTopRight(area.topRight());
        return movedInto(area, frame);
    }
    frame.moveTop(item->bottom() + 1 + gap);
    if (frame.bottom() > area.bottom()) {
        frame.moveBottom(item->top() - 1 - gap);
    }
    frame.moveLeft(item->center().x() - panel.width() / 2);
    return movedInto(area, frame);
}
