#pragma once

#include "WindowFrame.h"

#include <QRect>
#include <QString>

#include <memory>

class DefaultsStore;
class QWindow;

/// Sets and saves the main window's frame. Sizes are in device-independent pixels.
class MainWindowLayout
{
public:
    enum class SavedFrame { restore, ignore };

    inline static const QString frameAutosaveName = QStringLiteral("LumaportMainWindow");
    static constexpr QSize recommendedContentSize{900, 780};
    /// Least distance of the window from the edges of the screen and from desktop panels.
    static constexpr int margin = 20;

    explicit MainWindowLayout(std::shared_ptr<DefaultsStore> defaults);

    /// Places and sizes the window, unless it is in full screen. With `restore` it gets the saved frame, if
    /// there is one, and is maximised if it was; else the recommended frame.
    void apply(QWindow &window, SavedFrame savedFrame) const;

    /// Stores the window's frame, or that it is maximised; nothing while it is hidden, minimised or in full
    /// screen.
    void save(const QWindow &window) const;

    /// A frame of this size at `origin`, or centred without one, shrunk and moved into `visibleFrame` less
    /// the margin.
    static QRect place(const QRect &visibleFrame, const QSize &frameSize,
                       const std::optional<QPoint> &origin);

    /// The index of the screen that shows the largest part of `frame`; none when no screen shows any.
    static std::optional<qsizetype> screenOf(const QRect &frame, const QList<QRect> &screens);

private:
    std::optional<WindowFrame> savedFrame() const;

    std::shared_ptr<DefaultsStore> m_defaults;
};
