#include "BrandAssets.h"
#include "BrandMark.h"
#include "LumaportPalette.h"
#include "Symbol.h"
#include "SystemAppearance.h"

#include <QDir>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class VocabularyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFollowTheEffectiveAppearanceWithOneSignal()
    {
        SystemAppearance appearance;
        const LumaportPalette palette(appearance);
        QSignalSpy changes(&palette, &LumaportPalette::appearanceChanged);
        const auto colours = [&] {
            QString names;
            for (const QColor &color :
                 {palette.night(), palette.deck(), palette.panel(), palette.ink(), palette.muted(),
                  palette.iris(), palette.photon(), palette.mint(), palette.softLine()}) {
                names += color.name();
            }
            return names;
        };
        const QString light = "#f5f8ff#e7eefc#ffffff#17233f#556582#245bdb#ad3e20#176a52#dde6f6";
        const QString dark = "#171c30#202942#252f49#f5f8ff#b2c0d9#99bcff#ffaa91#82e0be#394763";
        QCOMPARE(colours(), light);
        appearance.force(SystemAppearance::ColorScheme::Dark);
        QCOMPARE(colours(), dark);
        appearance.setSystemScheme(SystemAppearance::ColorScheme::Dark); // forced dark already
        appearance.setSystemScheme(SystemAppearance::ColorScheme::Light);
        QCOMPARE(colours(), dark);
        QCOMPARE(changes.size(), 1);
        appearance.force(std::nullopt);
        QCOMPARE(colours(), light);
        QCOMPARE(changes.size(), 2);
    }

    void shouldDrawEverySymbolInItsColourWithinItsEdges()
    {
        const QStringList files = QDir(":/symbols").entryList();
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
                    QVERIFY2(x > 0 && y > 0 && x < 47 && y < 47, qPrintable(file + " is cut at its edge"));
                    QVERIFY2(pixel.alpha() < 255 || pixel.rgb() == qRgb(0x24, 0x5B, 0xDB), qPrintable(file));
                }
            }
            QVERIFY2(drawn > 48 * 48 / 30, qPrintable(file + " draws next to nothing"));
        }
    }

    void shouldWarnOfANameWithoutASymbol()
    {
        QTest::ignoreMessage(QtWarningMsg, "There is no symbol named \"no.such.symbol\"");
        Symbol().setProperty("name", "no.such.symbol");
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
        QDir(folder.path()).mkpath("probe/16x16");
        QFile index(folder.filePath("probe/index.theme"));
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=probe\nDirectories=16x16\n[16x16]\nSize=16\n");
        index.close();
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(folder.filePath("probe/16x16/mark.png")));
        QIcon::setThemeSearchPaths({folder.path()});
        QIcon::setThemeName("probe");

        const QString missing = ":/icon/NotThere.svg";
        const QIcon themed = BrandAssets::loadIcon(missing, "mark");
        QCOMPARE(themed.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
        QVERIFY(BrandAssets::loadIcon(missing, "nor-this").pixmap(16, 16).isNull());
    }
};

QTEST_MAIN(VocabularyTest)
#include "VocabularyTest.moc"
