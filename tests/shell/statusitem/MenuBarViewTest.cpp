#include "MenuBarViewController.h"
#include "ModelScene.h"

namespace {

/// The panel's view.
class Panel : public ModelScene
{
public:
    Panel()
    {
        show("import Lumaport.StatusItem\nMenuBarView {}",
             {{"controller", QVariant::fromValue(&m_controller)}});
    }
    ~Panel() { close(); }
    Panel(const Panel &) = delete;
    Panel &operator=(const Panel &) = delete;

    QString text(const QString &name) const { return find(name)->property("text").toString(); }
    QUrl picture() const { return find("thumbnail")->property("url").toUrl(); }

private:
    MenuBarViewController m_controller{model, [] {}};
};

} // namespace

class MenuBarViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellHowFarTheNewestPhotoIs()
    {
        Panel panel;
        QVERIFY(panel.find("hint"));
        QVERIFY(!panel.find("latestArrival"));
        QVERIFY(!panel.find("busyLine"));

        const QUrl source = panel.fixture.write("IMG_1.HEIC");
        panel.model.convertManually({source});
        QVERIFY(!panel.find("hint"));
        QVERIFY(panel.find("busyLine"));
        QCOMPARE(panel.text("arrivalName"), "IMG_1.HEIC");
        QCOMPARE(panel.text("arrivalStatus"), "Waiting to convert");
        QCOMPARE(panel.picture(), source);
        ModelFixture::turn();
        QCOMPARE(panel.text("arrivalStatus"), "Converting on your Mac");
        QVERIFY(!panel.find("revealButton"));

        panel.fixture.engine->succeed("IMG_1.png");
        QCOMPARE(panel.text("arrivalName"), "IMG_1.png");
        QCOMPARE(panel.text("arrivalStatus"), "Ready to use");
        QCOMPARE(panel.picture(), panel.fixture.url("IMG_1.png"));
        QVERIFY(!panel.find("busyLine"));
        panel.click(panel.find("revealButton"));
        QCOMPARE(panel.fixture.workspace->revealed, QList{panel.fixture.url("IMG_1.png")});
    }

    void shouldTellWhyThePhotoFailedOnAsManyLinesAsThatTakes()
    {
        Panel panel;
        ConversionItem item = panel.item("IMG_1.HEIC", ConversionStatus::failed);
        panel.model.setItems({item});
        QVERIFY(!panel.find("revealButton"));
        QCOMPARE(panel.text("arrivalStatus"), "Needs attention");
        const double oneLine = panel.find("arrivalName")->height();
        const QQuickItem *view = panel.find("latestArrival")->parentItem()->parentItem();
        const double low = view->height();

        item.errorMessage = QString("A long story. ").repeated(20);
        item.sourceName = QString("a very long name ").repeated(9) + ".HEIC";
        panel.model.setItems({item});
        QCOMPARE(panel.text("arrivalStatus"), *item.errorMessage);
        QTRY_VERIFY(view->height() > low + 2 * oneLine);
        QCOMPARE(panel.find("arrivalName")->height(), oneLine);
        QCOMPARE(view->width(), 360.0);
    }
};

QTEST_MAIN(MenuBarViewTest)
#include "MenuBarViewTest.moc"
