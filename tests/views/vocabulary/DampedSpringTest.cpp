#include "DampedSpring.h"

#include "SpringMotion.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <numbers>

// The spring's equation, x'' = -2 z w x' - w^2 x, in a million steps a second.
static DampedSpring::State solvedStepwise(double response, double fraction, DampedSpring::State state,
                                          double seconds)
{
    const double w = 2.0 * std::numbers::pi / response;
    const double h = 1e-6;
    for (double time = 0.0; time < seconds; time += h) {
        state.velocity -= h * (2.0 * fraction * w * state.velocity + w * w * state.displacement);
        state.displacement += h * state.velocity;
    }
    return state;
}

class DampedSpringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSolveItsEquation()
    {
        struct Spring
        {
            double response;
            double fraction;
            double velocity;
        };
        // A quiet button, a segment's pill pushed, a workspace pulled back, no overshoot, no damping.
        for (const Spring &spring :
             {Spring{0.25, 0.7, 0.0}, Spring{0.32, 0.72, 900.0}, Spring{0.35, 0.8, -300.0},
              Spring{0.4, 1.0, 500.0}, Spring{0.5, 0.0, 20.0}}) {
            const DampedSpring::State start{-60.0, spring.velocity};
            for (const double seconds : {0.004, 0.05, 0.3}) {
                const auto expected = solvedStepwise(spring.response, spring.fraction, start, seconds);
                const auto actual = DampedSpring(spring.response, spring.fraction).after(start, seconds);
                const QString which = QStringLiteral("%1 after %2 s").arg(spring.response).arg(seconds);
                QVERIFY2(std::abs(actual.displacement - expected.displacement) < 0.02, qPrintable(which));
                QVERIFY2(std::abs(actual.velocity - expected.velocity) < 0.5, qPrintable(which));
            }
        }
    }

    void shouldKeepItsVelocityWhenTheGoalChanges()
    {
        SpringMotion motion;
        motion.setTo(100.0);
        motion.advance(0.06);
        const double before = motion.value();
        motion.setTo(0.0);
        QCOMPARE(motion.value(), before);
        motion.advance(0.002);
        QVERIFY2(motion.value() > before, "a value on its way up does not turn within two milliseconds");
    }

    void shouldComeToRestAtTheGoalAndThenAskForNoFrames()
    {
        SpringMotion motion;
        QSignalSpy moving(&motion, &SpringMotion::movingChanged);
        motion.setTo(40.0);
        QVERIFY(motion.isMoving());
        for (int frame = 0; frame < 120 && motion.isMoving(); ++frame) {
            motion.advance(1.0 / 60.0);
        }
        QVERIFY(!motion.isMoving());
        QCOMPARE(motion.value(), 40.0);
        QCOMPARE(moving.size(), 2);
        QSignalSpy values(&motion, &SpringMotion::valueChanged);
        motion.advance(1.0);
        QCOMPARE(values.size(), 0);
    }

    void shouldTakeItsFirstGoalAndEveryGoalWhileNotAnimatedAtOnce()
    {
        SpringMotion motion;
        motion.classBegin();
        motion.setTo(35.0);
        motion.componentComplete();
        QCOMPARE(motion.value(), 35.0);
        QVERIFY(!motion.isMoving());
        motion.setTo(10.0);
        motion.advance(0.01);
        motion.setAnimated(false);
        QCOMPARE(motion.value(), 10.0);
        motion.setTo(20.0);
        QCOMPARE(motion.value(), 20.0);
        QVERIFY(!motion.isMoving());
    }
};

QTEST_GUILESS_MAIN(DampedSpringTest)
#include "DampedSpringTest.moc"
