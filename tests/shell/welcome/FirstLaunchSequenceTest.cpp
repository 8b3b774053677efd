#include "FirstLaunchSequence.h"

#include <QTest>

class FirstLaunchSequenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStartWithNothingShown()
    {
        const FirstLaunchSequence sequence;
        QVERIFY(sequence.isRunning());
        QVERIFY(!sequence.isTitleVisible());
        QCOMPARE(sequence.revealProgress(), 0.0);
        QCOMPARE(sequence.shimmerProgress(), 0.0);
        QCOMPARE(sequence.titleProgress(), 0.0);
        QCOMPARE(sequence.buttonProgress(), 0.0);
        QVERIFY(qAbs(sequence.artworkScale() - 0.96) < 1e-9);
    }

    void shouldTakeItsStepsInTheirTimes()
    {
        FirstLaunchSequence sequence;
        sequence.setElapsed(0.825); // the middle of the wipe, which is even on both sides of it
        QVERIFY(qAbs(sequence.revealProgress() - 0.5) < 1e-3);
        sequence.setElapsed(0.33);
        QVERIFY(sequence.revealProgress() < 0.1); // it starts slowly
        sequence.setElapsed(1.41);
        QVERIFY(!sequence.isTitleVisible());
        QVERIFY(sequence.revealProgress() < 1.0);
        sequence.setElapsed(1.42);
        QVERIFY(sequence.isTitleVisible());
        sequence.setElapsed(1.49);
        QVERIFY(sequence.titleProgress() > 0.15);
        QCOMPARE(sequence.buttonProgress(), 0.0); // it comes after the title
        sequence.setElapsed(1.65);
        QCOMPARE(sequence.revealProgress(), 1.0);
        QVERIFY(sequence.titleProgress() > 0.51); // it arrives slowly
        QVERIFY(sequence.buttonProgress() < sequence.titleProgress());
        sequence.setElapsed(1.79);
        QCOMPARE(sequence.shimmerProgress(), 0.0);
        sequence.setElapsed(1.88);
        QCOMPARE(sequence.titleProgress(), 1.0);
        QVERIFY(sequence.shimmerProgress() > 0.0);
        sequence.setElapsed(1.96);
        QCOMPARE(sequence.buttonProgress(), 1.0);
        sequence.setElapsed(1.80 + 1.05 / 2.0);
        QVERIFY(qAbs(sequence.shimmerProgress() - 0.5) < 1e-3);
    }

    void shouldComeToRest()
    {
        FirstLaunchSequence sequence;
        for (int frame = 0; frame < 60 * 3; ++frame) {
            QVERIFY(sequence.isRunning() || frame > 2.85 * 60);
            sequence.advance(1.0 / 60.0);
        }
        QVERIFY(!sequence.isRunning());
        QCOMPARE(sequence.shimmerProgress(), 1.0);
        QVERIFY(qAbs(sequence.artworkScale() - 1.0) < 1e-6);
    }

    void shouldShowEverythingAtOnceWithReducedMotion()
    {
        FirstLaunchSequence sequence;
        sequence.setReduceMotion(true);
        QVERIFY(!sequence.isRunning());
        QVERIFY(sequence.isTitleVisible());
        QCOMPARE(sequence.revealProgress(), 1.0);
        QVERIFY(qAbs(sequence.artworkScale() - 1.0) < 1e-6);
        QCOMPARE(sequence.titleProgress(), 1.0);
        QCOMPARE(sequence.buttonProgress(), 1.0);
        QVERIFY(qAbs(sequence.shimmerProgress() - 1.0) < 1e-6);
    }
};

QTEST_APPLESS_MAIN(FirstLaunchSequenceTest)
#include "FirstLaunchSequenceTest.moc"
