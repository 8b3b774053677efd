#include "PanelPlacement.h"

#include <QTest>

class PanelPlacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOpenAtTheItemAndStayOnTheScreen_data()
    {
        QTest::addColumn<QRect>("item");
        QTest::addColumn<QRect>("available");
        QTest::addColumn<QRect>("panel");
        const QRect belowBar(0, 24, 1280, 776);
        const QRect aboveBar(0, 0, 1280, 776);

        QTest::newRow("bar at the top, item in the middle")
            << QRect(629, 1, 22, 22) << belowBar << QRect(459, 30, 360, 400);
        QTest::newRow("item near the right edge")
            << QRect(1250, 1, 22, 22) << belowBar << QRect(914, 30, 360, 400);
        QTest::newRow("item near the left edge") << QRect(4, 1, 22, 22) << belowBar << QRect(6, 30, 360, 400);
        QTest::newRow("bar at the bottom: above the item")
            << QRect(1000, 777, 22, 22) << aboveBar << QRect(830, 370, 360, 400);
        QTest::newRow("a bare position inside the bar")
            << QRect(640, 12, 1, 1) << belowBar << QRect(460, 30, 360, 400);
        QTest::newRow("bar at the left of a second screen")
            << QRect(1290, 700, 22, 22) << QRect(1320, 0, 1240, 1024) << QRect(1326, 294, 360, 400);
        QTest::newRow("screen lower than the panel: its head stays visible")
            << QRect(629, 1, 22, 22) << QRect(0, 24, 1280, 300) << QRect(459, 30, 360, 400);
    }

    void shouldOpenAtTheItemAndStayOnTheScreen()
    {
        QFETCH(QRect, item);
        QFETCH(QRect, available);
        QTEST(PanelPlacement::place(QSize(360, 400), item, available), "panel");
    }

    void shouldOpenAtTheTopRightWithoutAnItem()
    {
        QCOMPARE(PanelPlacement::place(QSize(360, 400), {}, QRect(100, 24, 1280, 776)),
                 QRect(1014, 30, 360, 400));
    }
};

QTEST_APPLESS_MAIN(PanelPlacementTest)
#include "PanelPlacementTest.moc"
