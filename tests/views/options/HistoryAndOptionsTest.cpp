#include "ModelScene.h"

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

    static void setQuality(AppModel &model, double quality)
    {
        model.setSettings({.format = OutputFormat::jpeg, .jpegQuality = quality});
    }

private Q_SLOTS:
    void shouldShowTheEmptyStateOnlyWithoutHistory()
    {
        ModelScene scene;
        scene.show(list);
        QVERIFY(scene.find("emptyState"));
        QVERIFY(!scene.find("clearHistory"));
        QVERIFY(!scene.find("readyCount"));
        QVERIFY(scene.findText("AirDrop into Photos, or choose a HEIC photo above."));
        scene.model.setItems({scene.item("a.heic", ConversionStatus::ready)});
        QVERIFY(!scene.find("emptyState"));
        QVERIFY(scene.findText("1 ready"));
        scene.click(scene.find("clearHistory"));
        QVERIFY(scene.model.items().isEmpty());
        QCOMPARE(scene.model.lastEventText(), "History cleared");
        QVERIFY(QFile::exists(scene.fixture.url("a.heic").toLocalFile()));
    }

    void shouldShowInEachRowItsStateItsActionAndADividerBelow()
    {
        ModelScene scene;
        scene.show(list);
        QList<ConversionItem> items{scene.item("a.heic", ConversionStatus::ready),
                                    scene.item("b.heic", ConversionStatus::failed),
                                    scene.item("c.heic", ConversionStatus::queued)};
        items[0].outputURL = scene.fixture.url("a.png");
        items[1].outputURL = scene.fixture.write("copy.heic");
        scene.model.setItems(items);
        const QColor attention(0xAD, 0x3E, 0x20);
        for (int number = 0; number < 3; ++number) {
            QQuickItem *row = scene.find(QStringLiteral("row%1").arg(number));
            const QQuickItem *badge = scene.find("badge", row);
            QVERIFY(badge);
            QCOMPARE(badge->property("color").value<QColor>() == attention, number == 1);
            QCOMPARE(scene.all("reveal", row).size(), number == 0 ? 1 : 0);
            QCOMPARE(scene.all("tryAgain", row).size(), number == 1 ? 1 : 0);
            QCOMPARE(scene.all("divider", row).size(), number == 2 ? 0 : 1);
        }
        QVERIFY(!scene.find("clearHistory")->isEnabled());
        QQuickItem *reveal = scene.find("reveal");
        QCOMPARE(Scene::accessible(reveal)->text(QAccessible::Name), "Reveal a.png in Finder");
        scene.click(reveal);
        QCOMPARE(scene.fixture.workspace->revealed, QList{*items[0].outputURL});
        scene.click(scene.find("tryAgain"));
        QCOMPARE(scene.model.items().first().sourceURL, items[1].sourceURL);
        scene.model.setItems({items[0]});
        QVERIFY(!scene.find("divider"));
    }

    void shouldKeepTheRowAndItsThumbnailThroughAChangeOfStatus()
    {
        ModelScene scene;
        scene.show(list);
        QList<ConversionItem> items{scene.item("a.heic", ConversionStatus::queued)};
        scene.model.setItems(items);
        QQuickItem *thumbnail = scene.find("thumbnail");
        QTRY_VERIFY(thumbnail->property("loaded").toBool());
        QCOMPARE(scene.window.grabWindow().pixelColor(scene.centre(thumbnail)), QColor(0xFF, 0xA5, 0x00));
        items[0].status = ConversionStatus::converting;
        scene.model.setItems(items);
        items[0].status = ConversionStatus::failed;
        scene.model.setItems(items);
        QCOMPARE(scene.find("thumbnail"), thumbnail);
        QVERIFY(thumbnail->property("loaded").toBool());
        QCOMPARE(scene.fixture.photos->launched.load(), 1);

        items[0] = scene.item("b.heic", ConversionStatus::ready, "green");
        scene.model.setItems(items);
        QTRY_COMPARE(scene.window.grabWindow().pixelColor(scene.centre(scene.find("thumbnail"))),
                     QColor(Qt::darkGreen));
    }

    void shouldKeepThePlaceholderOfAPhotoThatGivesNoPicture()
    {
        ModelScene scene;
        scene.show("import Lumaport.History\nPhotoThumbnail { objectName: 'thumbnail'; width: 100; height: "
                   "100; variant: 1 }");
        QQuickItem *thumbnail = scene.find("thumbnail");
        const QImage without = scene.window.grabWindow();
        const QColor corner = without.pixelColor(1, 1); // odd: warm, from (1, 0.79, 0.59)
        QVERIFY(corner.red() == 255 && qAbs(corner.green() - 201) <= 2 && qAbs(corner.blue() - 150) <= 2);
        QVERIFY(without.pixelColor(50, 60).blue() > 200); // the mountains, nearly white
        thumbnail->setProperty("url", scene.item("x.heic", ConversionStatus::queued, "?").sourceURL);
        QTRY_COMPARE(scene.fixture.photos->launched.load(), 1);
        QTRY_COMPARE(scene.fixture.photos->running.load(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(scene.window.grabWindow(), without);
    }

    void shouldPaintNothingOfTheGradientAroundAPicture()
    {
        ModelScene scene;
        const ConversionItem photo = scene.item("a.heic", ConversionStatus::ready, "orange");
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

    void shouldShowTheQualityWithItsStopsForJpegOnly()
    {
        ModelScene scene;
        scene.show(panel);
        QVERIFY(!scene.find("quality"));
        setQuality(scene.model, 0.65);
        QQuickItem *slider = scene.find("qualitySlider");
        QVERIFY(slider);
        slider->forceActiveFocus(Qt::TabFocusReason);
        const QList<int> up{70, 75, 80, 85, 90, 95, 100, 100};
        const QList<int> down{95, 90, 85, 80, 75, 70, 65, 65};
        for (const auto &[key, stops] : {std::pair{Qt::Key_Right, up}, std::pair{Qt::Key_Left, down}}) {
            for (const int percent : stops) {
                scene.press(key);
                QCOMPARE(scene.model.settings().jpegQuality, percent / 100.0);
                QVERIFY(scene.findText(QStringLiteral("%1% quality").arg(percent)));
            }
        }
        for (const auto &[key, percent] :
             {std::pair{Qt::Key_Up, 70}, std::pair{Qt::Key_PageUp, 80}, std::pair{Qt::Key_End, 100},
              std::pair{Qt::Key_Down, 95}, std::pair{Qt::Key_PageDown, 85}, std::pair{Qt::Key_Home, 65}}) {
            scene.press(key);
            QCOMPARE(scene.model.settings().jpegQuality, percent / 100.0);
        }
        const QAccessibleValueInterface *range = Scene::accessible(slider)->valueInterface();
        QCOMPARE(range->minimumValue().toReal(), 0.65);
        QCOMPARE(range->maximumValue().toReal(), 1.0);
        // What was stored is truncated to whole percent where it is shown, and stays as it is.
        for (const auto &[quality, percent] :
             {std::pair{0.85, 85}, std::pair{0.7999999, 79}, std::pair{0.3, 30}, std::pair{1.7, 170}}) {
            setQuality(scene.model, quality);
            QVERIFY(scene.findText(QStringLiteral("%1% quality").arg(percent)));
            QCOMPARE(scene.model.settings().jpegQuality, quality);
        }
        scene.model.setSettings({.format = OutputFormat::png});
        QVERIFY(!scene.find("quality"));
    }

    void shouldChooseFromAPickerByKeys()
    {
        ModelScene scene;
        scene.show(panel);
        const auto choose = [&scene](const char *picker, const QString &title, const QString &before,
                                     Qt::Key key, const QString &after) {
            QQuickItem *box = scene.find(picker);
            QAccessibleInterface *spoken = Scene::accessible(box);
            QCOMPARE(spoken->text(QAccessible::Name), title);
            QCOMPARE(spoken->text(QAccessible::Description), before);
            box->forceActiveFocus(Qt::TabFocusReason);
            scene.press(Qt::Key_Return);
            QTRY_VERIFY(box->property("down").toBool());
            const auto *menu =
                box->property("popup").value<QObject *>()->property("contentItem").value<QQuickItem *>();
            const auto isSaidToBeChosen = [menu] {
                return Scene::accessible(menu->property("currentItem").value<QQuickItem *>())
                    ->state()
                    .selected;
            };
            QVERIFY(isSaidToBeChosen());
            scene.press(key);
            QVERIFY(!isSaidToBeChosen());
            scene.press(Qt::Key_Return);
            QCOMPARE(spoken->text(QAccessible::Description), after);
        };
        choose("outputLocation", "Save converted photos", "Lumaport folder", Qt::Key_Up, "Beside originals");
        QCOMPARE(scene.model.settings().outputLocation, OutputLocation::alongside);
        choose("originalPolicy", "Original photos", "Keep originals", Qt::Key_Down, "Move to Originals");
        QCOMPARE(scene.model.settings().originalPolicy, OriginalPolicy::archive);
    }

    void shouldToggleNotificationsByEveryWay()
    {
        ModelScene scene;
        scene.show(panel);
        QQuickItem *notify = scene.find("notify");
        const auto isOn = [&] { return scene.model.settings().notificationsEnabled; };
        notify->forceActiveFocus(Qt::TabFocusReason); // and scrolls it into view
        scene.click(notify);
        QVERIFY(!isOn());
        scene.press(Qt::Key_Space);
        QVERIFY(isOn());
        scene.press(Qt::Key_Return);
        QVERIFY(!isOn());
        Scene::accessible(notify)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(isOn());
        QVERIFY(notify->property("checked").toBool());
    }

    void shouldScrollToTheControlThatTheKeyboardReaches()
    {
        ModelScene scene;
        const QQuickItem *item = scene.show(panel);
        QQuickItem *notify = scene.find("notify");
        QVERIFY(notify->mapToItem(item, QPointF()).y() > item->height());
        notify->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(notify->mapToItem(item, QPointF(0, notify->height())).y() <= item->height());
        QQuickItem *close = scene.find("close");
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
        const QQuickItem *path = scene.find("folderPath");
        QVERIFY(path->width() <= 258 - 2 * 22);
        const double height = path->height();
        const QString deep = scene.fixture.home.filePath(QString("a-very-long-name/").repeated(9));
        QDir().mkpath(deep);
        scene.fixture.panel->answer = {QUrl::fromLocalFile(deep)};
        scene.click(scene.find("changeFolder"));
        ModelFixture::turn();
        QTRY_VERIFY(path->height() > height);
        scene.model.setItems({scene.item("a.heic", ConversionStatus::converting)});
        QVERIFY(!scene.find("convertExisting")->isEnabled());
        QVERIFY(scene.find("changeFolder")->isEnabled());
        scene.click(scene.find("openFolder"));
        QCOMPARE(scene.fixture.workspace->opened.size(), 1);
    }
};

QTEST_MAIN(HistoryAndOptionsTest)
#include "HistoryAndOptionsTest.moc"
