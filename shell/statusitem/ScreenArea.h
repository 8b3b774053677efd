#pragma once

#include <QRect>

/// `frame` moved inside `area` with the size it has; where it is larger than that, from the area's top left
/// on.
QRect movedInto(const QRect &area, QRect frame);
