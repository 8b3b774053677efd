#include "ShellFixture.h"

#include <QQuickItem>
#include <QTranslator>

#include <functional>

namespace {

/// Says everything five times over.
class LongWindedTranslator : public QTranslator
{
public:
    LongWindedTranslator() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char * /*context*/, const char *text, const char * /*disambiguation*/,
                      int /*count*/) const override
    {
        return QString(QString::fromUtf8(text) + QLatin1Char(' ')).repeated(5);
    }
};

/// The open panel, its items found by name.
class OpenPanelFixture : public ShellFixture
{
public:
    OpenPanelFixture()
    {
        configureMenuBar();
        delegate.togglePopover();
        window = panelWindow();
        (void)QTest::qWaitForWindowExposed(window);
    }

    QQuickItem *find(const char *name) const { return below(window->rootObject(), QLatin1String(name)); }
    bool shows(const char *name) const { return find(name)->isVisible(); }
    QString text(const char *name) const { return find(name)->property("text").toString(); }
    void click(const char *name) const
    {
        const QQuickItem *target = find(name);
        const QPointF centre = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
        QTest::mouseClick(window, Qt::LeftButton, {}, centre.toPoint());
    }

    PanelWindow *window;

private:
    /// Down the tree of items: what a repeater makes is no child of an object.
    static QQuickItem *below(QQuickItem *item, QLatin1String name)
    {
        if (item->objectName() == name) {
            return item;
        }
        for (QQuickItem *child : item->childItems()) {
            if (QQuickItem *found = below(child, name)) {
                return found;
            }
        }
        return nullptr;
    }
};

} // namespace

class MenuBarViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAHintUntilAPhotoHasArrived()
    {
        OpenPanelFixture panel;
        QVERIFY(panel.shows("hint"));
        QVERIFY(!panel.shows("latestArrival"));
        QVERIFY(!panel.shows("busyLine"));
        QVERIFY(!panel.shows("revealButton"));

        panel.model().convertManually({panel.write(QStringLiteral("IMG_1.HEIC"))});
        QVERIFY(!panel.shows("hint"));
        QVERIFY(panel.shows("latestArrival"));
    }

    void shouldTellHowFarTheNewestPhotoIs()
    {
        OpenPanelFixture panel;
        panel.model().convertManually({panel.write(QStringLiteral("IMG_1.HEIC"))});
        QCOMPARE(panel.text("arrivalName"), QStringLiteral("IMG_1.HEIC"));
        QCOMPARE(panel.text("arrivalStatus"), QStringLiteral("Waiting to convert"));
        QVERIFY(panel.shows("busyLine"));
        QCOMPARE(panel.find("thumbnail")->property("url").toUrl(), panel.url(QStringLiteral("IMG_1.HEIC")));
        panel.turn();
        QCOMPARE(panel.text("arrivalStatus"), QStringLiteral("Converting on your Mac"));
        QVERIFY(!panel.shows("revealButton"));

        panel.engine->succeed(QStringLiteral("IMG_1.png"));
        QCOMPARE(panel.text("arrivalName"), QStringLiteral("IMG_1.png"));
        QCOMPARE(panel.text("arrivalStatus"), QStringLiteral("Ready to use"));
        QCOMPARE(panel.find("thumbnail")->property("url").toUrl(), panel.url(QStringLiteral("IMG_1.png")));
        QVERIFY(!panel.shows("busyLine"));
        panel.click("revealButton");
        QCOMPARE(panel.workspace->revealed, QList<QUrl>{panel.url(QStringLiteral("IMG_1.png"))});
    }

    void shouldTellWhyThePhotoFailedOnAsManyLinesAsThatTakes()
    {
        OpenPanelFixture panel;
        panel.model().convertManually({panel.write(QStringLiteral("IMG_1.HEIC"))});
        panel.turn();
        panel.engine->fail(ConversionError::unreadableImage);
        QVERIFY(!panel.shows("revealButton"));
        QVERIFY(!panel.text("arrivalStatus").isEmpty());
        const double oneLine = panel.find("arrivalName")->height();
        const int lowPanel = panel.window->height();

        QList<ConversionItem> items = panel.model().items();
        items.first().errorMessage.reset();
        panel.model().setItems(items);
        QCOMPARE(panel.text("arrivalStatus"), QStringLiteral("Needs attention"));
        items.first().errorMessage = QStringLiteral("A long story. ").repeated(20);
        items.first().sourceName = QStringLiteral("a very long name ").repeated(9) + QStringLiteral(".HEIC");
        panel.model().setItems(items);
        QTRY_VERIFY(panel.window->height() > lowPanel);
        QVERIFY(panel.find("arrivalStatus")->height() > 3 * oneLine);
        QCOMPARE(panel.find("arrivalName")->height(), oneLine);
        QCOMPARE(panel.window->width(), 360);
    }

    void shouldWrapTextsOfAnyLength()
    {
        const LongWindedTranslator translator;
        OpenPanelFixture panel;
        panel.model().convertManually({panel.write(QStringLiteral("IMG_1.HEIC"))});
        QVERIFY(panel.shows("busyLine"));
        const QQuickItem *root = panel.window->rootObject();
        const QRectF inside = root->boundingRect().marginsRemoved({18.0, 18.0, 18.0, 18.0});
        int texts = 0;
        const std::function<void(const QQuickItem *)> check = [&](const QQuickItem *item) {
            if (item->objectName() == QLatin1String("monitoring")) {
                return; // another view's, with a button that no language makes this long
            }
            if (item->isVisible() && item->property("truncated").isValid()) {
                const QRectF place = item->mapRectToItem(root, item->boundingRect());
                const QByteArray text = item->property("text").toString().toUtf8();
                QVERIFY2(inside.contains(place), text.constData());
                QVERIFY2(!item->property("truncated").toBool(), text.constData());
                QVERIFY2(item->property("contentWidth").toDouble() < item->width() + 1.0, text.constData());
                ++texts;
            }
            for (const QQuickItem *child : item->childItems()) {
                check(child);
            }
        };
        check(root);
        QVERIFY(texts > 8);
        const auto apart = [&](const char *left, const char *right) {
            return panel.find(left)->x() + panel.find(left)->width() < panel.find(right)->x();
        };
        QVERIFY(apart("formatCaption", "formatControl"));
        QVERIFY(apart("openButton", "quitButton"));
    }

    void shouldKeepItsDistances()
    {
        OpenPanelFixture panel;
        const QQuickItem *root = panel.window->rootObject();
        double bottom = 0;
        for (const char *name : {"header", "monitoring", "hint", "format", "divider", "actions"}) {
            const QRectF frame = panel.find(name)->mapRectToItem(root, panel.find(name)->boundingRect());
            QCOMPARE(frame.left(), 18.0);
            QCOMPARE(frame.top(), bottom + 18.0);
            bottom = frame.bottom();
        }
        QCOMPARE(root->height(), bottom + 18.0);
        QCOMPARE(root->width(), 360.0);
    }

    void shouldChangeTheOutputFormatOfTheModel()
    {
        OpenPanelFixture panel;
        panel.click("segment1");
        QCOMPARE(panel.model().settings().format, OutputFormat::jpeg);
        panel.click("segment0");
        QCOMPARE(panel.model().settings().format, OutputFormat::png);
    }

    void shouldPauseWatchingAndOpenTheMainWindow()
    {
        OpenPanelFixture panel;
        panel.click("monitoringButton");
        QVERIFY(!panel.model().isWatching());
        panel.click("openButton");
        QCOMPARE(panel.mainOpened, 1);
        QVERIFY(!panel.window->isVisible());
    }
};

QTEST_MAIN(MenuBarViewTest)
#include "MenuBarViewTest.moc"
