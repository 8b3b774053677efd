#pragma once

#include "WindowFrame.h"

#include <QRect>
#include <QString>

#include <memory>

class DefaultsStore;
class QWindow;

/// Keeps the main window at a sensible size and place, and remembers where the user left it. Sizes are in
/// device-independent pixels.
class MainWindowLayout
{
public:
    enum class SavedFrame { restore, ignore };

    inline static const QString frameAutosaveName = QStringLiteral("LumaportMainWindow");
    static constexpr QSize recommendedContentSize{900, 780};
    /// Kept free on every side of what the screen has left of desktop panels.
    static constexpr int margin = 20;

    explicit MainWindowLayout(std::shared_ptr<DefaultsStore> defaults);

    /// Places and sizes the window; one in full screen is left alone. With `restore` it takes the saved
    /// frame, if there is one.
    void apply(QWindow &window, SavedFrame savedFrame) const;

    /// Stores the window's frame. One that is hidden, minimised, maximised or in full screen keeps the frame
    /// stored before.
    void save(const QWindow &window) const;

    /// A frame of this size, shrunk to the area of `visibleFrame` within the margin and moved inside it; in
    /// its middle without an origin.
    static QRect place(const QRect &visibleFrame, const QSize &frameSize,
                       const std::optional<QPoint> &origin);

    /// The number of the screen that holds most of `frame`; none when it is on none of them.
    static std::optional<qsizetype> screenOf(const QRect &frame, const QList<QRect> &screens);

private:
    std::optional<WindowFrame> savedFrame() const;

    std::shared_ptr<DefaultsStore> m_defaults;
};
