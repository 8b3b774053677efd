#include "FirstLaunchSequence.h"

#include <QTest>

class FirstLaunchSequenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeItsStepsInTheirTimes_data()
    {
        QTest::addColumn<double>("elapsed");
        QTest::addColumn<double>("reveal");
        QTest::addColumn<double>("title");
        QTest::addColumn<double>("button");
        QTest::addColumn<double>("shimmer");
        QTest::addColumn<double>("scale");
        QTest::newRow("start") << 0.0 << 0.0 << 0.0 << 0.0 << 0.0 << 0.96;
        QTest::newRow("a slow beginning") << 0.33 << 0.082 << 0.0 << 0.0 << 0.0 << 0.997;
        QTest::newRow("half of the wipe") << 0.825 << 0.5 << 0.0 << 0.0 << 0.0 << 1.0;
        QTest::newRow("before the title") << 1.41 << 0.958 << 0.0 << 0.0 << 0.0 << 1.0;
        QTest::newRow("title") << 1.5 << 0.984 << 0.276 << 0.0 << 0.0 << 1.0;
        QTest::newRow("button") << 1.725 << 1.0 << 0.853 << 0.685 << 0.0 << 1.0;
        QTest::newRow("shimmer") << 2.325 << 1.0 << 1.0 << 1.0 << 0.5 << 1.0;
        QTest::newRow("end") << 2.85 << 1.0 << 1.0 << 1.0 << 1.0 << 1.0;
    }

    void shouldTakeItsStepsInTheirTimes()
    {
        QFETCH(double, elapsed);
        FirstLaunchSequence sequence;
        sequence.setProperty("elapsed", elapsed);
        QCOMPARE(sequence.isTitleVisible(), elapsed > 1.415);
        QCOMPARE(sequence.isRunning(), elapsed < 2.849);
        const auto isNear = [](double value, const char *column) {
            const double expected = *static_cast<double *>(QTest::qData(column, qMetaTypeId<double>()));
            return qAbs(value - expected) < 0.002;
        };
        QVERIFY(isNear(sequence.revealProgress(), "reveal"));
        QVERIFY(isNear(sequence.titleProgress(), "title"));
        QVERIFY(isNear(sequence.buttonProgress(), "button"));
        QVERIFY(isNear(sequence.shimmerProgress(), "shimmer"));
        QVERIFY(isNear(sequence.artworkScale(), "scale"));
    }
};

QTEST_APPLESS_MAIN(FirstLaunchSequenceTest)
#include "FirstLaunchSequenceTest.moc"
