#include "DampedSpring.h"

#include "SpringMotion.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <numbers>

// The spring's equation, x'' = -2 z w x' - w^2 x, in steps so small that a fourth-order solver is exact to
// nine digits.
static DampedSpring::State solvedStepwise(double response, double fraction, DampedSpring::State state,
                                          double seconds)
{
    const double w = 2.0 * std::numbers::pi / response;
    const auto acceleration = [&](double x, double v) { return -2.0 * fraction * w * v - w * w * x; };
    const int steps = 4000;
    const double h = seconds / steps;
    for (int i = 0; i < steps; ++i) {
        const auto [x, v] = state;
        const double k1x = v, k1v = acceleration(x, v);
        const double k2x = v + h / 2 * k1v, k2v = acceleration(x + h / 2 * k1x, v + h / 2 * k1v);
        const double k3x = v + h / 2 * k2v, k3v = acceleration(x + h / 2 * k2x, v + h / 2 * k2v);
        const double k4x = v + h * k3v, k4v = acceleration(x + h * k3x, v + h * k3v);
        state = {x + h / 6 * (k1x + 2 * k2x + 2 * k3x + k4x), v + h / 6 * (k1v + 2 * k2v + 2 * k3v + k4v)};
    }
    return state;
}

class DampedSpringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSolveItsEquation_data()
    {
        QTest::addColumn<double>("response");
        QTest::addColumn<double>("fraction");
        QTest::addColumn<double>("velocity");
        QTest::newRow("quiet button") << 0.25 << 0.7 << 0.0;
        QTest::newRow("segment pill, pushed") << 0.32 << 0.72 << 900.0;
        QTest::newRow("workspace, pulled back") << 0.35 << 0.8 << -300.0;
        QTest::newRow("no overshoot") << 0.4 << 1.0 << 500.0;
        QTest::newRow("no damping") << 0.5 << 0.0 << 20.0;
    }

    void shouldSolveItsEquation()
    {
        QFETCH(double, response);
        QFETCH(double, fraction);
        QFETCH(double, velocity);
        const DampedSpring::State start{-60.0, velocity};
        for (const double seconds : {0.004, 0.05, 0.3, 1.0}) {
            const auto expected = solvedStepwise(response, fraction, start, seconds);
            const auto actual = DampedSpring(response, fraction).after(start, seconds);
            QVERIFY2(std::abs(actual.displacement - expected.displacement) < 1e-6,
                     qPrintable(QString::number(seconds)));
            QVERIFY2(std::abs(actual.velocity - expected.velocity) < 1e-4,
                     qPrintable(QString::number(seconds)));
        }
    }

    void shouldOvershootAsTheDampingFractionSays()
    {
        // The first overshoot of a damped oscillator is exp(-pi z / sqrt(1 - z^2)) of the way.
        SpringMotion motion;
        motion.setResponse(0.35);
        motion.setDampingFraction(0.8);
        motion.setTo(1.0);
        double peak = 0.0;
        for (int frame = 0; frame < 4000; ++frame) {
            motion.advance(0.0005);
            peak = std::max(peak, motion.value());
        }
        QVERIFY(std::abs(peak - (1.0 + std::exp(-std::numbers::pi * 0.8 / 0.6))) < 1e-4);
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
        QVERIFY2(motion.value() > before,
                 "a value on its way up must not turn round within two milliseconds");
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

    void shouldJumpWhileNotAnimated()
    {
        SpringMotion motion;
        motion.setTo(10.0);
        motion.advance(0.01);
        motion.setAnimated(false);
        QCOMPARE(motion.value(), 10.0);
        motion.setTo(20.0);
        QCOMPARE(motion.value(), 20.0);
        QVERIFY(!motion.isMoving());
    }

    void shouldTakeTheGoalItIsMadeWithWithoutMotion()
    {
        SpringMotion motion;
        motion.classBegin();
        motion.setTo(35.0);
        motion.componentComplete();
        QCOMPARE(motion.value(), 35.0);
        QVERIFY(!motion.isMoving());
    }
};

QTEST_GUILESS_MAIN(DampedSpringTest)
#include "DampedSpringTest.moc"
