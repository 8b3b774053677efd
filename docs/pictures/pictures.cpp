#include "DefaultsStore.h"
#include "MainViewController.h"
#include "MenuBarViewController.h"
#include "ModelScene.h"

#include <QDir>
#include <QTranslator>

#include <cstdio>
#include <functional>

// Renders the views and the main window in their states, light and dark, with fixed data and without motion.
// Usage: pictures FOLDER [TRANSLATION.qm]. The scale is that of the platform (QT_SCALE_FACTOR); it is part of
// the files' names, and any but 1 is for one size of the main window only.

namespace {

/// A model with a controller for each view that needs one.
class PictureScene : public ModelScene
{
public:
    PictureScene()
    {
        appearance.setMotion(SystemAppearance::Motion::Reduced);
        fixture.defaults->store(QStringLiteral("hasSeenSignatureWelcome"), true);
        main = std::make_unique<MainViewController>(model, fixture.defaults);
    }
    ~PictureScene() { close(); }
    PictureScene(const PictureScene &) = delete;
    PictureScene &operator=(const PictureScene &) = delete;

    MenuBarViewController panel{model, [] {}};
    std::unique_ptr<MainViewController> main;
};

struct Picture
{
    QString name;
    QSize size;
    QByteArray content;
    std::function<void(PictureScene &)> prepare = [](PictureScene &) {};
};

QByteArray pageOf(const Picture &picture)
{
    QByteArray imports = "import QtQuick\n";
    for (const char *module : {"Vocabulary", "Interaction", "Views", "Stage", "History", "Options",
                               "Controls", "StatusItem", "Welcome"}) {
        imports += QByteArray("import Lumaport.") + module + '\n';
    }
    return imports +
           "Rectangle { id: page; required property MenuBarViewController panel; required property "
           "MainViewController main; color: LumaportPalette.night; width: " +
           QByteArray::number(picture.size.width()) +
           "; height: " + QByteArray::number(picture.size.height()) + "\n" + picture.content + "\n}";
}

Picture symbolPage()
{
    QByteArray cells;
    const QStringList files = QDir(QStringLiteral(":/symbols")).entryList();
    for (const QString &file : files) {
        cells += "Row { spacing: 10; width: 340; height: 36\n";
        for (const char *size : {"9", "12", "19", "24"}) {
            cells += "Symbol { anchors.verticalCenter: parent.verticalCenter; color: LumaportPalette.ink; "
                     "pointSize: " +
                     QByteArray(size) + "; name: '" + file.chopped(4).toLatin1() + "' }\n";
        }
        cells += "BodyText { anchors.verticalCenter: parent.verticalCenter; size: 11; color: "
                 "LumaportPalette.muted; text: '" +
                 file.chopped(4).toLatin1() + "' } }\n";
    }
    const int rows = static_cast<int>(files.size() + 1) / 2;
    return {QStringLiteral("symbols"), QSize(720, rows * 36 + 40),
            "Grid { x: 20; y: 20; columns: 2; " + cells + "}"};
}

void setSettings(PictureScene &scene, OutputFormat format, double quality)
{
    ConversionSettings settings = scene.model.settings();
    settings.format = format;
    settings.jpegQuality = quality;
    scene.model.setSettings(settings);
}

QList<ConversionItem> oneOfEachState(PictureScene &scene)
{
    QList<ConversionItem> items{
        scene.item(QStringLiteral("IMG_2044.HEIC"), ConversionStatus::queued, "steelblue"),
        scene.item(QStringLiteral("IMG_2043.HEIC"), ConversionStatus::converting, "darkseagreen"),
        scene.item(QStringLiteral("A picnic by the lake with everybody who could make it that day.HEIC"),
                   ConversionStatus::ready, "peru"),
        scene.item(QStringLiteral("IMG_2041.HEIC"), ConversionStatus::failed, "?"),
        scene.item(QStringLiteral("IMG_2040.HEIC"), ConversionStatus::failed, "?")};
    items[3].errorMessage =
        QStringLiteral("This photo could not be opened. It may be damaged, or it may still be on its way "
                       "from the phone to this folder.");
    return items;
}

void pause(PictureScene &scene)
{
    scene.model.setIsWatching(false);
}

void loseFolder(PictureScene &scene)
{
    QDir(scene.fixture.home.path()).rmdir(QStringLiteral("Photos"));
    scene.model.retryMonitoring();
}

QUrl photo(PictureScene &scene)
{
    return scene.item(QStringLiteral("IMG_2044.HEIC"), ConversionStatus::queued, "lightskyblue/steelblue")
        .sourceURL;
}

void queueOne(PictureScene &scene)
{
    scene.model.convertManually({photo(scene)});
}

void convertOne(PictureScene &scene)
{
    queueOne(scene);
    ModelFixture::turn();
}

void fillHistory(PictureScene &scene)
{
    scene.model.setItems(
        {scene.item(QStringLiteral("IMG_2043.HEIC"), ConversionStatus::ready, "moccasin/seagreen"),
         scene.item(QStringLiteral("IMG_2042.HEIC"), ConversionStatus::ready, "gold/tomato"),
         scene.item(QStringLiteral("IMG_2041.HEIC"), ConversionStatus::failed, "?")});
}

QList<Picture> viewPictures()
{
    QList<Picture> pictures{symbolPage()};
    const auto add = [&pictures](
                         const char *name, const Picture &view,
                         const std::function<void(PictureScene &)> &prepare = [](PictureScene &) {}) {
        pictures.append({QLatin1String(name), view.size, view.content, prepare});
    };
    add("buttons", {.size = {480, 150}, .content = R"(
        Row {
            x: 20; y: 20; spacing: 14
            QuietButton { text: "Pause" }
            QuietButton { text: "Choose photos manually"; symbol: "plus" }
            QuietButton { symbol: "folder"; text: "Reveal"; display: QuietButton.IconOnly }
            QuietButton { text: "Disabled"; enabled: false }
        }
        Row {
            x: 20; y: 80; spacing: 14
            BrandMark { size: 31 }
            BrandMark { size: 38 }
            PhotoThumbnail { width: 52; height: 52; cornerRadius: 11 }
            PhotoThumbnail { width: 52; height: 52; cornerRadius: 11; variant: 1 }
            TextButton { text: "Clear history" }
            SymbolLabel { symbol: "lock.shield"; text: "Private by design"; color: LumaportPalette.muted; font.pixelSize: 11 }
        })"});
    const Picture monitoring{.size = {480, 110}, .content = "MonitoringControl { x: 20; y: 20; width: 440 }"};
    add("monitoring-on", monitoring);
    add("monitoring-paused", monitoring, pause);
    add("monitoring-unavailable", monitoring, loseFolder);

    const auto jpeg = [](double quality) {
        return [quality](PictureScene &scene) { setSettings(scene, OutputFormat::jpeg, quality); };
    };
    const Picture format{.size = {170, 70}, .content = "FormatControl { anchors.centerIn: parent }"};
    add("format-png", format);
    add("format-jpeg", format, jpeg(0.9));
    add("appearance", {.size = {170, 70}, .content = "AppearanceControl { anchors.centerIn: parent }"});

    const auto arrivals = [](PictureScene &scene) { scene.model.setItems(oneOfEachState(scene)); };
    const QByteArray wide = "ArrivalsList { x: 20; y: 20; width: 480 }";
    add("arrivals-empty", {.size = {520, 150}, .content = wide});
    add("arrivals", {.size = {520, 520}, .content = wide}, arrivals);
    add("arrivals-narrow", {.size = {320, 620}, .content = "ArrivalsList { x: 20; y: 20; width: 280 }"},
        arrivals);

    const Picture options{.size = {258, 660}, .content = "OptionsPanel { anchors.fill: parent }"};
    add("options-png", options, [](PictureScene &scene) { scene.watch(QStringLiteral("Downloads")); });
    add("options-jpeg", options, [jpeg](PictureScene &scene) {
        scene.watch(QStringLiteral("Downloads"));
        jpeg(0.85)(scene);
    });
    add("options-busy-long-path", options, [](PictureScene &scene) {
        scene.watch(QStringLiteral("Photos of the whole family/Every single one/2026 and before/Arrivals"));
        scene.model.setItems({scene.item(QStringLiteral("a.heic"), ConversionStatus::converting)});
    });

    const Picture panel{.size = {400, 480}, .content = R"(
        MenuBarView {
            x: 20; y: 20; width: implicitWidth; height: implicitHeight
            controller: page.panel
        })"};
    add("panel-empty", panel);
    add("panel-paused", panel, pause);
    int newest = 0;
    for (const char *name : {"panel-queued", "panel-converting", "panel-ready", "panel-failed"}) {
        add(name, panel, [state = newest++](PictureScene &scene) {
            scene.model.setItems({oneOfEachState(scene).at(state)});
        });
    }
    return pictures;
}

QList<Picture> mainWindowPictures(QSize size)
{
    QList<Picture> pictures;
    const QString sizeName = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    const auto add = [&](const char *state, const std::function<void(PictureScene &)> &prepare) {
        pictures.append({QStringLiteral("main-%1-%2").arg(QLatin1String(state), sizeName), size,
                         "MainView { anchors.fill: parent; controller: page.main }", prepare});
    };
    add("idle-empty", [](PictureScene &) {});
    add("idle", fillHistory);
    add("dragging", [](PictureScene &scene) {
        fillHistory(scene);
        scene.main->dragEntered({photo(scene)});
    });
    add("queued", queueOne);
    add("converting", convertOne);
    add("ready", [](PictureScene &scene) {
        fillHistory(scene);
        convertOne(scene);
        const auto copy =
            scene.item(QStringLiteral("IMG_2044.png"), ConversionStatus::ready, "lightskyblue/steelblue");
        scene.fixture.engine->succeed(copy.sourceURL.fileName());
    });
    add("failed", [](PictureScene &scene) {
        convertOne(scene);
        scene.fixture.engine->fail(ConversionError::unreadableImage);
    });
    add("unavailable", loseFolder);
    add("paused", pause);
    add("options", [](PictureScene &scene) {
        fillHistory(scene);
        scene.watch(QStringLiteral("Downloads"));
        scene.main->setProperty("optionsVisible", true);
    });
    add("recent", [](PictureScene &scene) {
        fillHistory(scene);
        scene.main->setProperty("showingHistory", true);
    });
    for (const char *elapsed : {"0.0", "0.8", "1.5", "2.5"}) {
        pictures.append(
            {QStringLiteral("welcome-%1-%2").arg(QLatin1String(elapsed), sizeName), size,
             QByteArray("FirstLaunchView { anchors.fill: parent; backdrop: true; playing: false; "
                        "artworkSource: '" LUMAPORT_SIGNATURE_ARTWORK "'; elapsed: ") +
                 elapsed + " }",
             [](PictureScene &scene) { scene.appearance.setMotion(SystemAppearance::Motion::Full); }});
    }
    return pictures;
}

QImage rendered(const Picture &picture, SystemAppearance::ColorScheme scheme)
{
    PictureScene scene;
    scene.appearance.setSystemScheme(scheme);
    picture.prepare(scene);
    scene.show(pageOf(picture).constData(),
               {{QStringLiteral("panel"), QVariant::fromValue(&scene.panel)},
                {QStringLiteral("main"), QVariant::fromValue(scene.main.get())}});
    const qsizetype thumbnails = scene.find(QStringLiteral("thumbnail")) ? scene.model.items().size() : 0;
    (void)QTest::qWaitFor(
        [&] { return scene.fixture.photos->launched >= thumbnails && scene.fixture.photos->running == 0; });
    QCoreApplication::processEvents();
    QImage image = scene.window.grabWindow();
    image.setDevicePixelRatio(
        scene.window.effectiveDevicePixelRatio()); // the software renderer leaves it out
    return image;
}

bool drawInto(const QDir &folder, const Picture &picture)
{
    using Scheme = SystemAppearance::ColorScheme;
    for (const auto &[look, scheme] : {std::pair("light", Scheme::Light), std::pair("dark", Scheme::Dark)}) {
        const QImage image = rendered(picture, scheme);
        const QString file = folder.filePath(QStringLiteral("%1-%2-%3x.png")
                                                 .arg(picture.name, QLatin1String(look))
                                                 .arg(image.devicePixelRatio()));
        if (!image.save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: pictures FOLDER [TRANSLATION.qm]\n");
        return 2;
    }
    QTranslator translator;
    if (arguments.size() > 2 &&
        !(translator.load(arguments.at(2)) && QGuiApplication::installTranslator(&translator))) {
        std::fprintf(stderr, "cannot load %s\n", qPrintable(arguments.at(2)));
        return 1;
    }
    QList<Picture> pictures = viewPictures() + mainWindowPictures({900, 780});
    if (qFuzzyCompare(application.devicePixelRatio(), 1.0)) {
        pictures += mainWindowPictures({800, 620}) + mainWindowPictures({1400, 1000});
    }
    const QDir folder(arguments.at(1));
    return std::all_of(pictures.cbegin(), pictures.cend(),
                       [&folder](const Picture &picture) { return drawInto(folder, picture); })
               ? 0
               : 1;
}
