#pragma once

class QQuickItem;

/// Puts `content` into `place`, and keeps it as large as that.
void keepFilled(QQuickItem &place, QQuickItem &content);
