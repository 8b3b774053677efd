#include "ModelFixture.h"

#include <QFile>
#include <QTest>

#include <malloc.h>

using namespace std::chrono_literals;

// The sanitizers' own count; null without them.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak)); // NOLINT

namespace {

/// Bytes that are allocated at this moment.
qint64 allocated()
{
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes != nullptr
                                   ? __sanitizer_get_current_allocated_bytes()
                                   : ::mallinfo2().uordblks);
}

} // namespace

class LongDayTest : public QObject
{
    Q_OBJECT

private:
    /// A photo every other minute, half of them no photos; each is taken away before the next.
    void arrive(int photos)
    {
        for (; photos > 0; --photos) {
            const QUrl photo = m_fixture.write(QString("IMG_%1.heic").arg(++m_number));
            m_fixture.settle();
            QCOMPARE(m_fixture.engine->running.size(), std::size_t{1});
            if (photos % 2 == 0) {
                m_fixture.engine->succeed(QString("IMG_%1.png").arg(m_number));
            } else {
                m_fixture.engine->fail(ConversionError::unreadableImage);
            }
            QVERIFY(QFile::remove(photo.toLocalFile()));
            m_fixture.settle();
            m_fixture.pass(2min);
            m_fixture.center->requests.clear(); // what the test itself keeps
            m_fixture.defaults->stored.clear();
        }
    }

    ModelFixture m_fixture;
    int m_number = 1000;

private Q_SLOTS:
    void shouldHoldNoMoreInTheEveningThanInTheMorning()
    {
        m_fixture.launch();
        arrive(720); // the day before: what is made once has been made
        const qint64 morning = allocated();
        arrive(720);
        constexpr qint64 noise = 16'384; // bytes
        QVERIFY(allocated() - morning <= noise);
        QCOMPARE(m_fixture.jobs->waitingJobs(), 0);
    }
};

QTEST_MAIN(LongDayTest)
#include "LongDayTest.moc"
