#include "ModelScene.h"

#include <QAccessible>
#include <QDir>

namespace {

constexpr auto list = "import QtQuick\nimport Lumaport.History\n"
                      "Rectangle { width: 460; height: 500; ArrivalsList { width: 460 } }";
constexpr auto panel = "import QtQuick\nimport Lumaport.Options\n"
                       "OptionsPanel { objectName: 'panel'; width: 258; height: 420\n"
                       "  property int closings: 0; onCloseRequested: ++closings }";

} // namespace

class HistoryAndOptionsTest : public QObject
{
    Q_OBJECT

    static int count(const QQuickItem *item, const QString &name)
    {
        int found = item->objectName() == name && item->isVisible() ? 1 : 0;
        for (const QQuickItem *child : item->childItems()) {
            found += count(child, name);
        }
        return found;
    }

private Q_SLOTS:
    void shouldShowTheEmptyStateOnlyWithoutHistory()
    {
        ModelScene scene;
        scene.show(list);
        QVERIFY(scene.find(QStringLiteral("emptyState")));
        QVERIFY(!scene.find(QStringLiteral("clearHistory")));
        QVERIFY(!scene.find(QStringLiteral("readyCount")));
        scene.model.setItems({scene.item(QStringLiteral("a.heic"), ConversionStatus::ready)});
        QVERIFY(!scene.find(QStringLiteral("emptyState")));
        QVERIFY(scene.find(QStringLiteral("readyCount")));
        scene.click(scene.find(QStringLiteral("clearHistory")));
        QVERIFY(scene.model.items().isEmpty());
        QCOMPARE(scene.model.lastEventText(), QStringLiteral("History cleared"));
        QVERIFY(QFile::exists(scene.fixture.url(QStringLiteral("a.heic")).toLocalFile()));
    }

    void shouldPutDividersBetweenRowsOnly()
    {
        ModelScene scene;
        const QQuickItem *item = scene.show(list);
        QList<ConversionItem> items{scene.item(QStringLiteral("a.heic"), ConversionStatus::ready)};
        scene.model.setItems(items);
        QCOMPARE(count(item, QStringLiteral("divider")), 0);
        items.append(scene.item(QStringLiteral("b.heic"), ConversionStatus::failed));
        items.prepend(scene.item(QStringLiteral("c.heic"), ConversionStatus::ready));
        scene.model.setItems(items);
        QCOMPARE(count(item, QStringLiteral("divider")), 2);
        scene.model.setItems({items[0]});
        QCOMPARE(count(item, QStringLiteral("divider")), 0);
    }

    void shouldKeepTheRowAndItsThumbnailThroughAChangeOfStatus()
    {
        ModelScene scene;
        scene.show(list);
        QList<ConversionItem> items{scene.item(QStringLiteral("a.heic"), ConversionStatus::queued)};
        scene.model.setItems(items);
        QQuickItem *thumbnail = scene.find(QStringLiteral("thumbnail"));
        QTRY_VERIFY(thumbnail->property("loaded").toBool());
        QCOMPARE(scene.window.grabWindow().pixelColor(scene.centre(thumbnail)), QColor(0xFF, 0xA5, 0x00));
        items[0].status = ConversionStatus::converting;
        scene.model.setItems(items);
        items[0].status = ConversionStatus::failed;
        scene.model.setItems(items);
        QCOMPARE(scene.find(QStringLiteral("thumbnail")), thumbnail);
        QVERIFY(thumbnail->property("loaded").toBool());
        QCOMPARE(scene.photos->launched.load(), 1);

        items[0] = scene.item(QStringLiteral("b.heic"), ConversionStatus::ready, "green");
        scene.model.setItems(items);
        QTRY_COMPARE(
            scene.window.grabWindow().pixelColor(scene.centre(scene.find(QStringLiteral("thumbnail")))),
            QColor(Qt::darkGreen));
    }

    void shouldKeepThePlaceholderOfAPhotoThatGivesNoPicture()
    {
        ModelScene scene;
        scene.show("import Lumaport.History\nPhotoThumbnail { objectName: 'thumbnail'; width: 100; height: "
                   "100; variant: 1 }");
        QQuickItem *thumbnail = scene.find(QStringLiteral("thumbnail"));
        const QImage without = scene.window.grabWindow();
        const QColor corner = without.pixelColor(1, 1); // odd: warm, from (1, 0.79, 0.59)
        QVERIFY(corner.red() == 255 && qAbs(corner.green() - 201) <= 2 && qAbs(corner.blue() - 150) <= 2);
        QVERIFY(without.pixelColor(50, 60).blue() > 200); // the mountains, nearly white
        thumbnail->setProperty("url",
                               scene.item(QStringLiteral("x.heic"), ConversionStatus::queued, "?").sourceURL);
        QTRY_COMPARE(scene.photos->launched.load(), 1);
        QTRY_COMPARE(scene.photos->running.load(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(scene.window.grabWindow(), without);
    }

    void shouldPaintNothingOfTheGradientAroundAPicture()
    {
        ModelScene scene;
        const ConversionItem photo = scene.item(QStringLiteral("a.heic"), ConversionStatus::ready, "orange");
        const QQuickItem *thumbnail =
            scene.show("import Lumaport.History\nPhotoThumbnail { width: 52; height: 52; cornerRadius: 11 }");
        scene.find({})->setProperty("url", photo.sourceURL);
        QTRY_VERIFY(thumbnail->property("loaded").toBool());
        const QImage picture = scene.window.grabWindow();
        for (int y = 0; y < 52; ++y) {
            for (int x = 0; x < 52; ++x) {
                QVERIFY2(picture.pixelColor(x, y).red() > 252, "orange and white have all of their red");
            }
        }
    }

    void shouldLeaveOutAPlaceholderThatIsTooSmallToBeSeen()
    {
        ModelScene scene;
        scene.show("import Lumaport.History\nPhotoThumbnail { width: 42; height: 42 }");
        QVERIFY(scene.window.grabWindow().pixelColor(21, 21).red() < 130); // of the gradient, not white
    }

    void shouldOfferTheOneActionOfEachRow()
    {
        ModelScene scene;
        const QQuickItem *item = scene.show(list);
        scene.model.setItems({scene.item(QStringLiteral("a.heic"), ConversionStatus::ready),
                              scene.item(QStringLiteral("b.heic"), ConversionStatus::failed),
                              scene.item(QStringLiteral("c.heic"), ConversionStatus::queued)});
        QCOMPARE(count(item, QStringLiteral("reveal")), 1);
        QCOMPARE(count(item, QStringLiteral("tryAgain")), 1);
        QVERIFY(!scene.find(QStringLiteral("clearHistory"))->isEnabled());
        QQuickItem *reveal = scene.find(QStringLiteral("reveal"));
        QCOMPARE(QAccessible::queryAccessibleInterface(reveal)->text(QAccessible::Name),
                 QStringLiteral("Reveal a.png in Finder"));
        scene.click(reveal);
        QCOMPARE(scene.fixture.workspace->revealed.size(), 1);
        scene.click(scene.find(QStringLiteral("tryAgain")));
        QCOMPARE(scene.model.items().first().sourceName, QStringLiteral("b.heic"));
    }

    void shouldShowTheQualityWithItsStopsForJpegOnly()
    {
        ModelScene scene;
        scene.show(panel);
        QVERIFY(!scene.find(QStringLiteral("quality")));
        ConversionSettings settings = scene.model.settings();
        settings.format = OutputFormat::jpeg;
        settings.jpegQuality = 0.65;
        scene.model.setSettings(settings);
        QQuickItem *slider = scene.find(QStringLiteral("qualitySlider"));
        QVERIFY(slider);
        slider->forceActiveFocus(Qt::TabFocusReason);
        const QQuickItem *text = scene.find(QStringLiteral("qualityText"));
        for (const int percent : {70, 75, 80, 85, 90, 95, 100, 100}) {
            scene.press(Qt::Key_Right);
            QCOMPARE(text->property("text").toString(), QStringLiteral("%1% quality").arg(percent));
            QCOMPARE(scene.model.settings().jpegQuality, percent / 100.0);
        }
        for (const int percent : {95, 90, 85, 80, 75, 70, 65, 65}) {
            scene.press(Qt::Key_Left);
            QCOMPARE(text->property("text").toString(), QStringLiteral("%1% quality").arg(percent));
        }
        settings.format = OutputFormat::png;
        scene.model.setSettings(settings);
        QVERIFY(!scene.find(QStringLiteral("quality")));
    }

    void shouldLeaveAStoredQualityOutOfTheSlidersRangeAlone()
    {
        ModelScene scene;
        ConversionSettings settings = scene.model.settings();
        settings.format = OutputFormat::jpeg;
        settings.jpegQuality = 0.3;
        scene.model.setSettings(settings);
        scene.show(panel);
        QCOMPARE(scene.model.settings().jpegQuality, 0.3);
        QCOMPARE(scene.find(QStringLiteral("qualityText"))->property("text").toString(),
                 QStringLiteral("30% quality"));
    }

    void shouldChooseFromAPickerByKeys()
    {
        ModelScene scene;
        scene.show(panel);
        QQuickItem *picker = scene.find(QStringLiteral("outputLocation"));
        picker->forceActiveFocus(Qt::TabFocusReason);
        scene.press(Qt::Key_Return);
        QTRY_VERIFY(picker->property("down").toBool());
        const auto *menu =
            picker->property("popup").value<QObject *>()->property("contentItem").value<QQuickItem *>();
        const auto isSaidToBeChosen = [menu] {
            auto *entry = menu->property("currentItem").value<QQuickItem *>();
            return QAccessible::queryAccessibleInterface(entry)->state().selected;
        };
        QVERIFY(isSaidToBeChosen());
        scene.press(Qt::Key_Up);
        QVERIFY(!isSaidToBeChosen());
        scene.press(Qt::Key_Return);
        QCOMPARE(scene.model.settings().outputLocation, OutputLocation::alongside);
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(picker);
        QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("Save converted photos"));
        QCOMPARE(spoken->text(QAccessible::Description), QStringLiteral("Beside originals"));
    }

    void shouldToggleNotificationsByEveryWay()
    {
        ModelScene scene;
        scene.show(panel);
        QQuickItem *notify = scene.find(QStringLiteral("notify"));
        const auto isOn = [&] { return scene.model.settings().notificationsEnabled; };
        notify->forceActiveFocus(Qt::TabFocusReason); // and scrolls it into view
        scene.click(notify);
        QVERIFY(!isOn());
        scene.press(Qt::Key_Space);
        QVERIFY(isOn());
        scene.press(Qt::Key_Return);
        QVERIFY(!isOn());
        QAccessible::queryAccessibleInterface(notify)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
        QVERIFY(isOn());
        QVERIFY(notify->property("checked").toBool());
    }

    void shouldScrollToTheControlThatTheKeyboardReaches()
    {
        ModelScene scene;
        const QQuickItem *item = scene.show(panel);
        QQuickItem *notify = scene.find(QStringLiteral("notify"));
        QVERIFY(notify->mapToItem(item, QPointF()).y() > item->height());
        notify->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(notify->mapToItem(item, QPointF(0, notify->height())).y() <= item->height());
        QQuickItem *close = scene.find(QStringLiteral("close"));
        close->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(close->mapToItem(item, QPointF()).y() >= 0);
        scene.press(Qt::Key_Return);
        QCOMPARE(item->property("closings").toInt(), 1);
    }

    void shouldShowHowFarItIsScrolledOnDarkGroundToo()
    {
        ModelScene scene;
        scene.appearance.force(SystemAppearance::ColorScheme::Dark);
        scene.show(panel);
        QTest::mouseMove(&scene.window, QPoint(100, 300));
        const auto bar = [&] { return scene.window.grabWindow().pixelColor(258 - 5, 40).lightness(); };
        const int ground = bar();
        QWheelEvent wheel(QPointF(100, 300), QPointF(100, 300), {}, QPoint(0, -120), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&scene.window, &wheel);
        QTRY_VERIFY(bar() > ground + 60);
        QTRY_COMPARE(bar(), ground);
    }

    void shouldWrapALongPathAndStayUsableWhileBusy()
    {
        ModelScene scene;
        scene.show(panel);
        const QQuickItem *path = scene.find(QStringLiteral("folderPath"));
        QVERIFY(path->width() <= 258 - 2 * 22);
        const double height = path->height();
        const QString deep = scene.fixture.home.filePath(QStringLiteral("a-very-long-name/").repeated(9));
        QDir().mkpath(deep);
        scene.fixture.panel->answer = {QUrl::fromLocalFile(deep)};
        scene.click(scene.find(QStringLiteral("changeFolder")));
        ModelFixture::turn();
        QTRY_VERIFY(path->height() > height);
        scene.model.setItems({scene.item(QStringLiteral("a.heic"), ConversionStatus::converting)});
        QVERIFY(!scene.find(QStringLiteral("convertExisting"))->isEnabled());
        QVERIFY(scene.find(QStringLiteral("changeFolder"))->isEnabled());
        scene.click(scene.find(QStringLiteral("openFolder")));
        QCOMPARE(scene.fixture.workspace->opened.size(), 1);
    }
};

QTEST_MAIN(HistoryAndOptionsTest)
#include "HistoryAndOptionsTest.moc"
