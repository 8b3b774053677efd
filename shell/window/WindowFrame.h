#pragma once

#include <QPoint>
#include <QSize>
#include <QString>

#include <optional>

/// Where and how large the user left a window, in device-independent pixels.
struct WindowFrame
{
    std::optional<QPoint> origin; ///< of the frame with its decoration; none where the desktop does not tell
    QSize contentSize;            ///< without decoration and menu bar, whose size differs between desktops
    bool isMaximised = false;     ///< the rest is then the frame that the window returns to

    bool operator==(const WindowFrame &) const = default;

    /// "x y width height", without an origin "width height"; then " maximised" if it is.
    QString toText() const;
    static std::optional<WindowFrame> fromText(const QString &text);
};
