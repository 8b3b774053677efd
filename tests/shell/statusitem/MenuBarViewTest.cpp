#include "ShellFixture.h"
#include "Symbol.h"

#include <QFile>
#include <QQuickItem>
#include <QTranslator>

namespace {

/// All items below `item`, with those that a repeater made.
QList<QQuickItem *> below(const QQuickItem *item)
{
    QList<QQuickItem *> all;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        all << child << below(child);
    }
    return all;
}

/// The open panel, its items found by name.
class OpenPanelFixture : public ShellFixture
{
public:
    OpenPanelFixture()
    {
        delegate.togglePopover();
        (void)QTest::qWaitForWindowExposed(panelWindow);
    }

    QList<QQuickItem *> items() const { return below(panelWindow->contentItem()); }
    QQuickItem *find(const char *name) const
    {
        const auto all = items();
        return *std::ranges::find(all, QString(name), &QObject::objectName);
    }
    bool shows(const char *name) const { return find(name)->isVisible(); }
    QString text(const char *name) const { return find(name)->property("text").toString(); }
    void click(const char *name) const
    {
        const QPointF centre = find(name)->boundingRect().center();
        QTest::mouseClick(panelWindow, Qt::LeftButton, {}, find(name)->mapToScene(centre).toPoint());
    }
};

} // namespace

class MenuBarViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellHowFarTheNewestPhotoIs()
    {
        OpenPanelFixture panel;
        QVERIFY(panel.shows("hint"));
        QVERIFY(!panel.shows("latestArrival"));
        QVERIFY(!panel.shows("busyLine"));

        const QUrl source = panel.write("IMG_1.HEIC");
        panel.model().convertManually({source});
        QVERIFY(!panel.shows("hint"));
        QVERIFY(panel.shows("latestArrival"));
        QVERIFY(panel.shows("busyLine"));
        QCOMPARE(panel.text("arrivalName"), "IMG_1.HEIC");
        QCOMPARE(panel.text("arrivalStatus"), "Waiting to convert");
        QCOMPARE(panel.find("thumbnail")->property("url").toUrl(), source);
        panel.turn();
        QCOMPARE(panel.text("arrivalStatus"), "Converting on your Mac");
        QVERIFY(!panel.shows("revealButton"));

        panel.engine->succeed("IMG_1.png");
        QCOMPARE(panel.text("arrivalName"), "IMG_1.png");
        QCOMPARE(panel.text("arrivalStatus"), "Ready to use");
        QCOMPARE(panel.find("thumbnail")->property("url").toUrl(), panel.url("IMG_1.png"));
        QVERIFY(!panel.shows("busyLine"));
        panel.click("revealButton");
        QCOMPARE(panel.workspace->revealed, QList{panel.url("IMG_1.png")});
    }

    void shouldTellWhyThePhotoFailedOnAsManyLinesAsThatTakes()
    {
        OpenPanelFixture panel;
        ConversionItem item = ConversionItem::queuedFor(panel.write("IMG_1.HEIC"), {});
        item.status = ConversionStatus::failed;
        panel.model().setItems({item});
        QVERIFY(!panel.shows("revealButton"));
        QCOMPARE(panel.text("arrivalStatus"), "Needs attention");
        const double oneLine = panel.find("arrivalName")->height();
        const int lowPanel = panel.panelWindow->height();

        item.errorMessage = QString("A long story. ").repeated(20);
        item.sourceName = QString("a very long name ").repeated(9) + ".HEIC";
        panel.model().setItems({item});
        QCOMPARE(panel.text("arrivalStatus"), *item.errorMessage);
        QTRY_VERIFY(panel.panelWindow->height() > lowPanel);
        QVERIFY(panel.find("arrivalStatus")->height() > 3 * oneLine);
        QCOMPARE(panel.find("arrivalName")->height(), oneLine);
        QCOMPARE(panel.panelWindow->width(), 360);
    }

    void shouldTranslateAndWrapItsTextsAndDrawItsSymbols()
    {
        QTranslator translator;
        QVERIFY(translator.load(LUMAPORT_PSEUDO_LOCALE));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        OpenPanelFixture panel;
        ConversionItem ready = ConversionItem::queuedFor(panel.write("IMG_1.HEIC"), {});
        const ConversionItem queued = ready;
        ready.status = ConversionStatus::ready;
        panel.model().setItems({ready, queued});
        QVERIFY(panel.shows("busyLine"));
        const QQuickItem *root = panel.panelWindow->rootObject();
        const QRectF inside = root->boundingRect().marginsRemoved({18.0, 18.0, 18.0, 18.0});
        const QStringList names{"Lumaport", "IMG_1.HEIC", "PNG", "JPEG", ""};
        int texts = 0;
        int symbols = 0;
        for (const QQuickItem *item : panel.items()) {
            if (qobject_cast<const Symbol *>(item) && !item->property("name").toString().isEmpty()) {
                const QString file = ":/symbols/" + item->property("name").toString() + ".svg";
                QVERIFY2(QFile::exists(file), qPrintable(file));
                ++symbols;
            } else if (item->isVisible() && item->property("truncated").isValid()) {
                const QString text = item->property("text").toString();
                QVERIFY2(names.contains(text) || text.startsWith('['), qPrintable(text));
                QVERIFY2(inside.contains(item->mapRectToItem(root, item->boundingRect())), qPrintable(text));
                QVERIFY2(!item->property("truncated").toBool(), qPrintable(text));
                QVERIFY2(item->property("contentWidth").toDouble() < item->width() + 1, qPrintable(text));
                ++texts;
            }
        }
        QVERIFY(texts > 8);
        QCOMPARE(symbols, 4); // watching, busy, reveal, quit
        const auto right = [&](const char *name) {
            return panel.find(name)->x() + panel.find(name)->width();
        };
        QVERIFY(right("formatCaption") < panel.find("formatControl")->x());
        QVERIFY(right("openButton") < panel.find("quitButton")->x());
    }
};

QTEST_MAIN(MenuBarViewTest)
#include "MenuBarViewTest.moc"
