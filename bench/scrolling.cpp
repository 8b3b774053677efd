#include "ModelScene.h"

#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <vector>

// Measures what a list of 20 photos costs the main thread: painting one thumbnail, and the time between
// frames while the list scrolls on the present platform. Usage: scrolling

namespace {

constexpr int rows = 20;

void report(const char *what, std::vector<double> milliseconds)
{
    std::sort(milliseconds.begin(), milliseconds.end());
    std::printf("%-44s median %6.2f ms   longest %6.2f ms   (%zu)\n", what,
                milliseconds[milliseconds.size() / 2], milliseconds.back(), milliseconds.size());
}

template<typename Work>
std::vector<double> timed(int times, Work work)
{
    std::vector<double> result;
    for (int i = 0; i < times; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        result.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);

    ModelScene scene;
    QList<ConversionItem> items;
    for (int i = 0; i < rows; ++i) {
        items.append(scene.item(QStringLiteral("IMG_%1.HEIC").arg(2000 + i), ConversionStatus::ready));
    }
    scene.model.setItems(items);
    scene.show(
        "import QtQuick\nimport Lumaport.Vocabulary\nimport Lumaport.History\n"
        "Rectangle { color: LumaportPalette.night; width: 520; height: 560\n"
        "  Flickable { anchors.fill: parent; contentHeight: rows.height; clip: true\n"
        "    ArrivalsList { id: rows; width: 520 }\n"
        "    SequentialAnimation on contentY { loops: Animation.Infinite\n"
        "      NumberAnimation { to: 900; duration: 900 } NumberAnimation { to: 0; duration: 900 } } } }");
    (void)QTest::qWaitFor(
        [&] { return scene.fixture.photos->launched >= rows && scene.fixture.photos->running == 0; });

    std::vector<double> intervals;
    QElapsedTimer sinceFrame;
    QObject::connect(&scene.window, &QQuickWindow::frameSwapped, &scene.window, [&] {
        if (sinceFrame.isValid()) {
            intervals.push_back(static_cast<double>(sinceFrame.nsecsElapsed()) / 1e6);
        }
        sinceFrame.start();
    });
    (void)QTest::qWaitFor([&] { return intervals.size() >= 300; }, 20000);
    if (intervals.empty()) {
        std::fprintf(stderr, "no frame was shown\n");
        return 1;
    }
    report("between two frames while 20 rows scroll", intervals);
    return 0;
}
