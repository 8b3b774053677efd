#include "BrandAssets.h"
#include "BrandMark.h"
#include "LumaportPalette.h"
#include "Symbol.h"
#include "SystemAppearance.h"
#include "Typeface.h"

#include <QDir>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class VocabularyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveEveryAdaptiveColourBothItsValues()
    {
        SystemAppearance appearance;
        const LumaportPalette palette(appearance);
        const auto names = [&] {
            QStringList list;
            for (const QColor &color :
                 {palette.night(), palette.deck(), palette.panel(), palette.ink(), palette.muted(),
                  palette.iris(), palette.photon(), palette.mint(), palette.softLine()}) {
                list << color.name(QColor::HexArgb);
            }
            return list.join(u' ');
        };
        QCOMPARE(
            names(),
            QStringLiteral(
                "#fff5f8ff #ffe7eefc #ffffffff #ff17233f #ff556582 #ff245bdb #ffad3e20 #ff176a52 #ffdde6f6"));
        appearance.setSystemScheme(SystemAppearance::ColorScheme::Dark);
        QCOMPARE(
            names(),
            QStringLiteral(
                "#ff171c30 #ff202942 #ff252f49 #fff5f8ff #ffb2c0d9 #ff99bcff #ffffaa91 #ff82e0be #ff394763"));
        QCOMPARE(LumaportPalette::cobalt().name(), QStringLiteral("#3978ff"));
        QCOMPARE(LumaportPalette::coral().name(), QStringLiteral("#ff805f"));
    }

    void shouldAnnounceAChangeOfTheEffectiveAppearanceOnly()
    {
        SystemAppearance appearance;
        const LumaportPalette palette(appearance);
        QSignalSpy changes(&palette, &LumaportPalette::appearanceChanged);
        appearance.force(SystemAppearance::ColorScheme::Dark);
        QCOMPARE(changes.size(), 1);
        appearance.setSystemScheme(SystemAppearance::ColorScheme::Dark); // forced dark already
        appearance.setSystemScheme(SystemAppearance::ColorScheme::Light);
        QCOMPARE(changes.size(), 1);
        QVERIFY(appearance.isDark());
        appearance.force(std::nullopt);
        QCOMPARE(changes.size(), 2);
        QVERIFY(!appearance.isDark());
    }

    void shouldDrawEverySymbolInItsColourWithAirAround()
    {
        const QStringList files = QDir(QStringLiteral(":/symbols")).entryList();
        QVERIFY(files.size() >= 28);
        for (const QString &file : files) {
            const QImage image = Symbol::image(file.chopped(4), QColor(0x24, 0x5B, 0xDB), 48);
            int drawn = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QColor pixel = image.pixelColor(x, y);
                    if (pixel.alpha() == 0) {
                        continue;
                    }
                    ++drawn;
                    QVERIFY2(x > 0 && y > 0 && x < 47 && y < 47,
                             qPrintable(file + QStringLiteral(" is cut at its edge")));
                    QVERIFY2(pixel.alpha() < 255 || pixel.rgb() == qRgb(0x24, 0x5B, 0xDB), qPrintable(file));
                }
            }
            QVERIFY2(drawn > 48 * 48 / 30, qPrintable(file + QStringLiteral(" draws next to nothing")));
        }
    }

    void shouldGiveNoPictureForAnUnknownSymbol()
    {
        QVERIFY(Symbol::image(QStringLiteral("no.such.symbol"), Qt::black, 16).isNull());
    }

    void shouldDrawTheMarkAtTheScreensResolution()
    {
        BrandMark mark;
        mark.setSize(31.0);
        mark.setWidth(31.0);
        mark.setHeight(31.0);
        QImage drawn(62, 62, QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        painter.scale(2.0, 2.0);
        mark.paint(&painter);
        painter.end();
        QCOMPARE(drawn, BrandAssets::icon().pixmap(QSize(62, 62), 1.0).toImage());
    }

    void shouldFallBackToTheDesktopsIconAndThenToNone()
    {
        QVERIFY(!BrandAssets::icon().pixmap(31, 31).isNull());
        QTemporaryDir folder;
        QDir(folder.path()).mkpath(QStringLiteral("probe/16x16"));
        QFile index(folder.filePath(QStringLiteral("probe/index.theme")));
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=probe\nDirectories=16x16\n[16x16]\nSize=16\n");
        index.close();
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(folder.filePath(QStringLiteral("probe/16x16/mark.png"))));
        QIcon::setThemeSearchPaths({folder.path()});
        QIcon::setThemeName(QStringLiteral("probe"));

        const QString missing = QStringLiteral(":/icon/NotThere.svg");
        const QIcon themed = BrandAssets::loadIcon(missing, QStringLiteral("mark"));
        QCOMPARE(themed.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
        QVERIFY(BrandAssets::loadIcon(missing, QStringLiteral("nor-this")).pixmap(16, 16).isNull());

        QFile broken(folder.filePath(QStringLiteral("broken.png")));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("not a picture");
        broken.close();
        QVERIFY(!BrandAssets::loadIcon(broken.fileName(), QStringLiteral("mark")).pixmap(16, 16).isNull());
    }

    void shouldAskForInterFirstAndKeepTheDesktopsFamily()
    {
        const QFont font = Typeface::preferred(QFont(QStringLiteral("Some Sans")));
        QCOMPARE(font.families(), (QStringList{QStringLiteral("Inter"), QStringLiteral("Some Sans")}));
    }
};

QTEST_MAIN(VocabularyTest)
#include "VocabularyTest.moc"
