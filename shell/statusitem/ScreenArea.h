#pragma once

#include <QRect>

#include <algorithm>

/// `frame`, moved inside `area` with the size it has. One that is larger than `area` starts at its top left.
inline QRect movedInto(const QRect &area, QRect frame)
{
    const int lastX = area.right() - frame.width() + 1;
    const int lastY = area.bottom() - frame.height() + 1;
    frame.moveTo(std::max(area.left(), std::min(lastX, frame.x())),
                 std::max(area.top(), std::min(lastY, frame.y())));
    return frame;
}
