#include "PanelPlacement.h"

#include <QTest>

class PanelPlacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOpenAtTheItemAndStayOnTheScreen_data()
    {
        QTest::addColumn<std::optional<QRect>>("item");
        QTest::addColumn<QRect>("available");
        QTest::addColumn<QPoint>("corner");
        using Item = std::optional<QRect>;
        const QRect belowBar(0, 24, 1280, 776);
        const QRect aboveBar(0, 0, 1280, 776);

        QTest::newRow("bar at the top") << Item({629, 1, 22, 22}) << belowBar << QPoint(459, 30);
        QTest::newRow("near the right edge") << Item({1250, 1, 22, 22}) << belowBar << QPoint(914, 30);
        QTest::newRow("near the left edge") << Item({4, 1, 22, 22}) << belowBar << QPoint(6, 30);
        QTest::newRow("bar at the bottom") << Item({1000, 777, 22, 22}) << aboveBar << QPoint(830, 370);
        QTest::newRow("a position inside the bar") << Item({640, 12, 1, 1}) << belowBar << QPoint(460, 30);
        QTest::newRow("bar at the left of a second screen")
            << Item({1290, 700, 22, 22}) << QRect(1320, 0, 1240, 1024) << QPoint(1326, 294);
        QTest::newRow("screen lower than the panel")
            << Item({629, 1, 22, 22}) << QRect(0, 24, 1280, 300) << QPoint(459, 30);
        QTest::newRow("no item") << Item() << QRect(100, 24, 1280, 776) << QPoint(1014, 30);
    }

    void shouldOpenAtTheItemAndStayOnTheScreen()
    {
        QFETCH(std::optional<QRect>, item);
        QFETCH(QRect, available);
        QFETCH(QPoint, corner);
        const QSize panel(360, 400);
        QCOMPARE(PanelPlacement::place(panel, item, available), QRect(corner, panel));
    }
};

QTEST_APPLESS_MAIN(PanelPlacementTest)
#include "PanelPlacementTest.moc"
