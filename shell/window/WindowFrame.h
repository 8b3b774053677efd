#pragma once

#include <QPoint>
#include <QSize>
#include <QString>

#include <optional>

/// Where and how large the user left a window, in device-independent pixels.
struct WindowFrame
{
    std::optional<QPoint> origin; ///< of the whole frame, decoration included; none where the desktop keeps
                                  ///< it to itself
    QSize contentSize;            ///< without decoration and menu bar, which another desktop draws otherwise

    bool operator==(const WindowFrame &) const = default;

    /// "x y width height", or "width height" without an origin.
    QString toText() const;
    static std::optional<WindowFrame> fromText(const QString &text);
};
