#include "MenuBarViewController.h"
#include "ModelScene.h"
#include "Typeface.h"

#include <QDir>
#include <QTranslator>

#include <cstdio>
#include <functional>

// Renders the views in their states, light and dark, with fixed data and without motion. Usage: pictures
// FOLDER [TRANSLATION.qm]. The scale is that of the platform (QT_SCALE_FACTOR); it is part of the files'
// names.

namespace {

struct Picture
{
    QString name;
    QByteArray content; ///< the view, with its size
    std::function<void(ModelScene &)> prepare = [](ModelScene &) {};
};

QByteArray page(int width, int height, const QByteArray &content)
{
    return "import QtQuick\nimport Lumaport.Vocabulary\nimport Lumaport.Interaction\nimport Lumaport.Views\n"
           "import Lumaport.Stage\nimport Lumaport.History\nimport Lumaport.Options\nimport "
           "Lumaport.Controls\n"
           "import Lumaport.StatusItem\n"
           "Rectangle { id: page; property MenuBarViewController panelController; color: "
           "LumaportPalette.night; width: " +
           QByteArray::number(width) + "; height: " + QByteArray::number(height) + "\n" + content + "\n}";
}

QByteArray symbolPage()
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
    return page(720, rows * 36 + 40, "Grid { x: 20; y: 20; columns: 2; " + cells + "}");
}

void setSettings(ModelScene &scene, OutputFormat format, double quality)
{
    ConversionSettings settings = scene.model.settings();
    settings.format = format;
    settings.jpegQuality = quality;
    scene.model.setSettings(settings);
}

QList<ConversionItem> oneOfEachState(ModelScene &scene)
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

QList<Picture> pictures()
{
    const QByteArray monitoring = page(480, 110, "MonitoringControl { x: 20; y: 20; width: 440 }");
    const QByteArray arrivals = page(520, 520, "ArrivalsList { x: 20; y: 20; width: 480 }");
    const QByteArray options = page(258, 660, "OptionsPanel { anchors.fill: parent }");
    const QByteArray format = page(170, 70, "FormatControl { anchors.centerIn: parent }");
    const QByteArray appearance = page(170, 70, "AppearanceControl { anchors.centerIn: parent }");
    const QByteArray buttons = page(480, 150, R"(
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
        })");
    const QByteArray panel = page(400, 480, R"(
        MenuBarView {
            x: 20; y: 20; width: implicitWidth; height: implicitHeight
            controller: page.panelController
        })");
    const auto panelWith = [](int newest) {
        return [newest](ModelScene &scene) { scene.model.setItems({oneOfEachState(scene).at(newest)}); };
    };
    return {
        {QStringLiteral("symbols"), symbolPage()},
        {QStringLiteral("buttons"), buttons},
        {QStringLiteral("monitoring-on"), monitoring},
        {QStringLiteral("monitoring-paused"), monitoring,
         [](ModelScene &scene) { scene.model.setIsWatching(false); }},
        {QStringLiteral("monitoring-unavailable"), monitoring,
         [](ModelScene &scene) {
             QDir(scene.fixture.home.path()).rmdir(QStringLiteral("Photos"));
             scene.model.retryMonitoring();
         }},
        {QStringLiteral("format-png"), format},
        {QStringLiteral("format-jpeg"), format,
         [](ModelScene &scene) { setSettings(scene, OutputFormat::jpeg, 0.9); }},
        {QStringLiteral("appearance"), appearance},
        {QStringLiteral("arrivals-empty"), page(520, 150, "ArrivalsList { x: 20; y: 20; width: 480 }")},
        {QStringLiteral("arrivals"), arrivals,
         [](ModelScene &scene) { scene.model.setItems(oneOfEachState(scene)); }},
        {QStringLiteral("arrivals-narrow"), page(320, 620, "ArrivalsList { x: 20; y: 20; width: 280 }"),
         [](ModelScene &scene) { scene.model.setItems(oneOfEachState(scene)); }},
        {QStringLiteral("options-png"), options,
         [](ModelScene &scene) { scene.watch(QStringLiteral("Downloads")); }},
        {QStringLiteral("options-jpeg"), options,
         [](ModelScene &scene) {
             scene.watch(QStringLiteral("Downloads"));
             setSettings(scene, OutputFormat::jpeg, 0.85);
         }},
        {QStringLiteral("options-busy-long-path"), options,
         [](ModelScene &scene) {
             scene.watch(
                 QStringLiteral("Photos of the whole family/Every single one/2026 and before/Arrivals"));
             scene.model.setItems({scene.item(QStringLiteral("a.heic"), ConversionStatus::converting)});
         }},
        {QStringLiteral("panel-empty"), panel},
        {QStringLiteral("panel-paused"), panel, [](ModelScene &scene) { scene.model.setIsWatching(false); }},
        {QStringLiteral("panel-queued"), panel, panelWith(0)},
        {QStringLiteral("panel-converting"), panel, panelWith(1)},
        {QStringLiteral("panel-ready"), panel, panelWith(2)},
        {QStringLiteral("panel-failed"), panel, panelWith(3)},
    };
}

QImage rendered(const Picture &picture, SystemAppearance::ColorScheme scheme)
{
    ModelScene scene;
    scene.appearance.setMotion(SystemAppearance::Motion::Reduced);
    scene.appearance.setSystemScheme(scheme);
    picture.prepare(scene);
    MenuBarViewController panel(scene.model, [] {});
    scene.show(picture.content.constData(),
               {{QStringLiteral("panelController"), QVariant::fromValue(&panel)}});
    const qsizetype thumbnails = scene.find(QStringLiteral("thumbnail")) ? scene.model.items().size() : 0;
    (void)QTest::qWaitFor([&] { return scene.photos->launched >= thumbnails && scene.photos->running == 0; });
    QCoreApplication::processEvents();
    QImage image = scene.window.grabWindow();
    image.setDevicePixelRatio(
        scene.window.effectiveDevicePixelRatio()); // the software renderer leaves it out
    scene.close();
    return image;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setFont(Typeface::preferred(QGuiApplication::font()));
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
    const QDir folder(arguments.at(1));
    const auto all = pictures();
    for (const Picture &picture : all) {
        for (const auto scheme :
             {SystemAppearance::ColorScheme::Light, SystemAppearance::ColorScheme::Dark}) {
            const QImage image = rendered(picture, scheme);
            const QString file = QStringLiteral("%1-%2-%3x.png")
                                     .arg(picture.name, scheme == SystemAppearance::ColorScheme::Dark
                                                            ? QStringLiteral("dark")
                                                            : QStringLiteral("light"))
                                     .arg(image.devicePixelRatio());
            if (!image.save(folder.filePath(file))) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(folder.filePath(file)));
                return 1;
            }
        }
    }
    return 0;
}
