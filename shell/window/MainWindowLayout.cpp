#include "MainWindowLayout.h"

#include "DefaultsStore.h"
#include "ScreenArea.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace {

/// The height of the window's menu bar, which is no part of the content's size.
QMargins menuBarOf(const QWindow &window)
{
    const auto *menuBar = window.property("menuBar").value<QQuickItem *>();
    return {0, menuBar != nullptr ? static_cast<int>(menuBar->height()) : 0, 0, 0};
}

/// False on Wayland, where programs neither set nor learn the places of their windows.
bool canKnowPlaces()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

const QScreen *screenFor(const QWindow &window, const std::optional<QRect> &savedFrame)
{
    if (savedFrame) {
        const QList<QScreen *> screens = QGuiApplication::screens();
        QList<QRect> geometries;
        for (const QScreen *screen : screens) {
            geometries.append(screen->geometry());
        }
        if (const auto number = MainWindowLayout::screenOf(*savedFrame, geometries)) {
            return screens.at(*number);
        }
    }
    return window.screen() != nullptr ? window.screen() : QGuiApplication::primaryScreen();
}

/// What a window may cover of the part of a screen that desktop panels leave free.
QRect areaIn(const QRect &visibleFrame)
{
    constexpr int margin = MainWindowLayout::margin;
    return visibleFrame.marginsRemoved({margin, margin, margin, margin});
}

} // namespace

MainWindowLayout::MainWindowLayout(std::shared_ptr<DefaultsStore> defaults)
    : m_defaults(std::move(defaults))
{}

void MainWindowLayout::apply(QWindow &window, SavedFrame savedFrame) const
{
    if (window.windowStates().testFlag(Qt::WindowFullScreen)) {
        return;
    }
    const auto saved = savedFrame == SavedFrame::restore ? this->savedFrame() : std::nullopt;
    const bool shallBeMaximised = saved && saved->isMaximised;
    if (shallBeMaximised && window.windowStates().testFlag(Qt::WindowMaximized)) {
        return;
    }
    const QMargins decoration = window.frameMargins();
    const QSize contentSize = saved ? saved->contentSize : recommendedContentSize;
    const QSize frameSize = contentSize.grownBy(decoration + menuBarOf(window));
    const auto origin = saved ? saved->origin : std::nullopt;

    const QScreen *screen =
        screenFor(window, origin ? std::optional(QRect(*origin, frameSize)) : std::nullopt);
    if (screen == nullptr) {
        return;
    }
    const QRect frame = place(screen->availableGeometry(), frameSize, origin);
    if (window.windowStates().testFlag(Qt::WindowMaximized)) {
        // Its decoration changes when it is no longer maximised, and so does its width: the frame is set
        // again then.
        QObject::connect(
            &window, &QWindow::widthChanged, &window,
            [layout = *this, savedFrame, &window] { layout.apply(window, savedFrame); },
            Qt::SingleShotConnection);
        window.setWindowStates(window.windowStates() & ~Qt::WindowMaximized);
    }
    // A smallest size beyond the screen's would put a part of the window out of reach.
    const QSize room = areaIn(screen->availableGeometry()).size().shrunkBy(decoration);
    window.setMinimumSize(window.minimumSize().boundedTo(room));
    window.resize(frame.size().shrunkBy(decoration));
    window.setFramePosition(frame.topLeft());
    if (shallBeMaximised) {
        window.setWindowStates(window.windowStates() | Qt::WindowMaximized);
    }
}

void MainWindowLayout::save(const QWindow &window) const
{
    if (!window.isVisible()) {
        return;
    }
    const auto saved = savedFrame();
    WindowFrame frame;
    if (window.windowStates() == Qt::WindowMaximized) {
        frame = saved.value_or(WindowFrame{.contentSize = recommendedContentSize});
        frame.isMaximised = true;
    } else if (window.windowStates() == Qt::WindowNoState) {
        frame = {.origin = canKnowPlaces() ? std::optional(window.framePosition()) : std::nullopt,
                 .contentSize = window.size().shrunkBy(menuBarOf(window))};
    } else {
        return;
    }
    if (frame != saved) {
        m_defaults->store(frameAutosaveName, frame.toText());
    }
}

std::optional<WindowFrame> MainWindowLayout::savedFrame() const
{
    return WindowFrame::fromText(m_defaults->text(frameAutosaveName).value_or(QString()));
}

QRect MainWindowLayout::place(const QRect &visibleFrame, const QSize &frameSize,
                              const std::optional<QPoint> &origin)
{
    const QRect area = areaIn(visibleFrame);
    QRect frame(QPoint(), frameSize.boundedTo(area.size()));
    frame.moveCenter(area.center());
    if (origin) {
        frame.moveTopLeft(*origin);
    }
    return movedInto(area, frame);
}

std::optional<qsizetype> MainWindowLayout::screenOf(const QRect &frame, const QList<QRect> &screens)
{
    const auto sharedArea = [&frame](const QRect &screen) {
        const QRect shared = frame & screen;
        return shared.isEmpty() ? 0 : qint64(shared.width()) * shared.height();
    };
    const auto best = std::max_element(screens.begin(), screens.end(), [&](const QRect &a, const QRect &b) {
        return sharedArea(a) < sharedArea(b);
    });
    return best == screens.end() || sharedArea(*best) == 0 ? std::nullopt
                                                           : std::optional(best - screens.begin());
}
