#include "DefaultsStore.h"
#include "MainViewController.h"
#include "ModelScene.h"
#include "Typeface.h"

#include <QDir>

#include <cstdio>
#include <functional>

// Renders the main window in its states, light and dark, in three sizes, with fixed data and without motion,
// and the welcome at four moments. The scale is that of the platform (QT_SCALE_FACTOR); it is part of the
// files' names, and any but 1 is for the middle size. Usage: main_window_pictures FOLDER

namespace {

constexpr int thumbnailTime = 100; // milliseconds; the painted ones are there far sooner

struct State
{
    QString name;
    std::function<void(ModelScene &, MainViewController &)> enter;
};

QUrl photo(const ModelScene &scene)
{
    return scene.item(QStringLiteral("IMG_2044.HEIC"), ConversionStatus::queued, "lightskyblue/steelblue")
        .sourceURL;
}

void convertOne(ModelScene &scene)
{
    scene.model.convertManually({photo(scene)});
    ModelFixture::turn();
}

void fillHistory(ModelScene &scene)
{
    scene.model.setItems(
        {scene.item(QStringLiteral("IMG_2043.HEIC"), ConversionStatus::ready, "moccasin/seagreen"),
         scene.item(QStringLiteral("IMG_2042.HEIC"), ConversionStatus::ready, "gold/tomato"),
         scene.item(QStringLiteral("IMG_2041.HEIC"), ConversionStatus::failed, "?")});
}

QList<State> states()
{
    const auto named = [](const char *name, auto enter) { return State{QLatin1String(name), enter}; };
    return {
        named("idle-empty", [](ModelScene &, MainViewController &) {}),
        named("idle", [](ModelScene &scene, MainViewController &) { fillHistory(scene); }),
        named("dragging",
              [](ModelScene &scene, MainViewController &controller) {
                  fillHistory(scene);
                  controller.dragEntered({photo(scene)});
              }),
        named("queued",
              [](ModelScene &scene, MainViewController &) { scene.model.convertManually({photo(scene)}); }),
        named("converting", [](ModelScene &scene, MainViewController &) { convertOne(scene); }),
        named("ready",
              [](ModelScene &scene, MainViewController &) {
                  fillHistory(scene);
                  convertOne(scene);
                  const auto copy = scene.item(QStringLiteral("IMG_2044.png"), ConversionStatus::ready,
                                               "lightskyblue/steelblue");
                  scene.fixture.engine->succeed(copy.sourceURL.fileName());
              }),
        named("failed",
              [](ModelScene &scene, MainViewController &) {
                  convertOne(scene);
                  scene.fixture.engine->fail(ConversionError::unreadableImage);
              }),
        named("unavailable",
              [](ModelScene &scene, MainViewController &) {
                  QDir(scene.fixture.home.path()).rmdir(QStringLiteral("Photos"));
                  scene.model.retryMonitoring();
              }),
        named("paused", [](ModelScene &scene, MainViewController &) { scene.model.setIsWatching(false); }),
        named("options",
              [](ModelScene &scene, MainViewController &controller) {
                  fillHistory(scene);
                  scene.watch(QStringLiteral("Downloads"));
                  controller.setProperty("optionsVisible", true);
              }),
        named("recent",
              [](ModelScene &scene, MainViewController &controller) {
                  fillHistory(scene);
                  controller.setProperty("showingHistory", true);
              }),
    };
}

QImage mainWindow(const State &state, QSize size, SystemAppearance::ColorScheme scheme)
{
    ModelScene scene;
    scene.appearance.setMotion(SystemAppearance::Motion::Reduced);
    scene.appearance.setSystemScheme(scheme);
    scene.fixture.defaults->store(QStringLiteral("hasSeenSignatureWelcome"), true);
    MainViewController controller(scene.model, scene.fixture.defaults);
    scene.show("import Lumaport.Views; MainView { }",
               {{QStringLiteral("controller"), QVariant::fromValue(&controller)},
                {QStringLiteral("width"), size.width()},
                {QStringLiteral("height"), size.height()}});
    state.enter(scene, controller);
    QTest::qWait(thumbnailTime);
    const QImage image = scene.window.grabWindow();
    scene.close();
    return image;
}

QImage welcome(double seconds, QSize size)
{
    ModelScene scene;
    scene.show("import Lumaport.Welcome; FirstLaunchView { backdrop: true; playing: false }",
               {{QStringLiteral("artworkSource"), QStringLiteral(LUMAPORT_SIGNATURE_ARTWORK)},
                {QStringLiteral("elapsed"), seconds},
                {QStringLiteral("width"), size.width()},
                {QStringLiteral("height"), size.height()}});
    return scene.window.grabWindow();
}

bool save(const QImage &image, const QDir &folder, const QString &name)
{
    if (image.save(folder.filePath(name + QStringLiteral(".png")))) {
        return true;
    }
    std::fprintf(stderr, "cannot write %s\n", qPrintable(folder.filePath(name)));
    return false;
}

bool saveAll(const QDir &folder, QSize size)
{
    const QString sizeName =
        QStringLiteral("%1x%2-%3x").arg(size.width()).arg(size.height()).arg(qGuiApp->devicePixelRatio());
    const QList<State> all = states();
    for (const State &state : all) {
        for (const auto scheme :
             {SystemAppearance::ColorScheme::Light, SystemAppearance::ColorScheme::Dark}) {
            const QString look = scheme == SystemAppearance::ColorScheme::Dark ? QStringLiteral("dark")
                                                                               : QStringLiteral("light");
            if (!save(mainWindow(state, size, scheme), folder,
                      QStringLiteral("main-%1-%2-%3").arg(state.name, sizeName, look))) {
                return false;
            }
        }
    }
    for (const double seconds : {0.0, 0.8, 1.5, 2.5}) {
        if (!save(welcome(seconds, size), folder,
                  QStringLiteral("welcome-%1-%2").arg(seconds, 0, 'f', 1).arg(sizeName))) {
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setFont(Typeface::preferred(QGuiApplication::font()));
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: main_window_pictures FOLDER\n");
        return 2;
    }
    const QDir folder(arguments.at(1));
    QList<QSize> sizes{QSize(900, 780)};
    if (qFuzzyCompare(application.devicePixelRatio(), 1.0)) {
        sizes << QSize(800, 620) << QSize(1400, 1000);
    }
    for (const QSize size : std::as_const(sizes)) {
        if (!saveAll(folder, size)) {
            return 1;
        }
    }
    return 0;
}
