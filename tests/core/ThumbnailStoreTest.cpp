#include "ThumbnailStore.h"

#include "ConversionActivity.h"
#include "FakeImageWorkerLauncher.h"
#include "WriteFile.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

class ThumbnailStoreTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    std::shared_ptr<FakeImageWorkerLauncher> m_launcher;
    std::optional<ThumbnailStore> m_store;
    int m_answered = 0;

    QUrl write(const QString &name, const QByteArray &content = "red") const
    {
        return writeFile(m_folder.filePath(name), content);
    }

    /// The store's answer, waited for; none when there is none within the test's time limit.
    std::optional<QImage> answer(const QUrl &url)
    {
        std::optional<QImage> result;
        const auto request = m_store->image(url, [&](const QImage &image) { result = image; });
        (void)QTest::qWaitFor([&] { return result.has_value(); });
        return result;
    }

    /// Asks for so many photos. The workers are held, and are as many as there can be at a time.
    std::vector<std::unique_ptr<ThumbnailRequest>> askForHeld(int count)
    {
        m_launcher->hold();
        std::vector<std::unique_ptr<ThumbnailRequest>> requests;
        for (int i = 0; i < count; ++i) {
            const QUrl photo = write(QString("held%1.heic").arg(i));
            requests.push_back(m_store->image(photo, [this](const QImage &) { ++m_answered; }));
        }
        (void)QTest::qWaitFor([&] { return m_launcher->running == std::min(count, 2); });
        return requests;
    }

private Q_SLOTS:
    void init()
    {
        m_launcher = std::make_shared<FakeImageWorkerLauncher>();
        m_store.emplace(m_launcher);
        m_answered = 0;
    }
    void cleanup() { m_store.reset(); }

    void shouldAnswerAtOnceTheSecondTimeAlsoWhenTheFileWasReplaced()
    {
        const QUrl photo = write("one.heic");
        const auto first = answer(photo);
        QVERIFY(first);
        QCOMPARE(first->size(), QSize(240, 180));
        QCOMPARE(first->pixelColor(100, 100), QColor(Qt::red));

        write("one.heic", "blue");
        QImage second;
        const auto request = m_store->image(photo, [&](const QImage &image) { second = image; });
        QVERIFY(!request);
        QCOMPARE(second, *first);
        QCOMPARE(m_launcher->launched.load(), 1);
    }

    void shouldGiveNothingForWhatIsNoPhotoAndReadItAgainNextTime()
    {
        const QUrl photo = write("late.heic", "not a colour");
        for (const QUrl &url : {photo, QUrl("file:///missing.heic"), QUrl::fromLocalFile(m_folder.path())}) {
            const auto nothing = answer(url);
            QVERIFY(nothing && nothing->isNull());
        }
        write("late.heic", "green");
        QVERIFY(!answer(photo)->isNull());
    }

    void shouldNeverReadMoreThanTwoAtATime()
    {
        const auto requests = askForHeld(6);
        m_launcher->gate.release(6);
        QTRY_COMPARE(m_answered, 6);
        QCOMPARE(m_launcher->mostRunning.load(), 2);
    }

    void shouldGiveWayToConversionsButNotForEver()
    {
        auto first = std::make_optional<ConversionActivity>();
        QVERIFY(m_launcher->isPaused);
        auto second = std::make_optional<ConversionActivity>();
        first.reset();
        QVERIFY(!m_launcher->isPaused); // those under way go on beside the second

        constexpr std::chrono::milliseconds Wait(50);
        m_store.emplace(m_launcher, Wait);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(answer(write("beside.heic")));
        QVERIFY(timer.elapsed() >= Wait.count());

        m_store.emplace(m_launcher, std::chrono::hours(1));
        const auto request = m_store->image(write("after.heic"), [this](const QImage &) { ++m_answered; });
        second.reset();
        QTRY_COMPARE(m_answered, 1);
    }

    void shouldReadOnceForAllWhoWaitAndNeverWhatWasGivenUpBeforeItsTurn()
    {
        auto requests = askForHeld(4);
        const QUrl held = QUrl::fromLocalFile(m_folder.filePath("held0.heic"));
        requests.push_back(m_store->image(held, [this](const QImage &) { ++m_answered; }));
        requests[0].reset(); // the other one still waits
        requests[2].reset();
        m_launcher->gate.release(4);
        QTRY_COMPARE(m_answered, 3);
        QCOMPARE(m_launcher->launched.load(), 3);
    }

    void shouldDropTheAnswerOfACancelledRequestAndKeepNothing()
    {
        askForHeld(1).clear();
        m_launcher->gate.release(2);
        QTRY_COMPARE(m_launcher->running.load(), 0);
        QVERIFY(answer(write("held0.heic"))); // comes after the dropped one, and needs a worker of its own
        QCOMPARE(m_answered, 0);
        QCOMPARE(m_launcher->launched.load(), 2);
    }

    void shouldKeepTheLatest24()
    {
        for (int i = 0; i < 25; ++i) {
            QVERIFY(answer(write(QString("kept%1.heic").arg(i))));
        }
        QVERIFY(answer(write("kept1.heic")));
        QCOMPARE(m_launcher->launched.load(), 25);
        QVERIFY(answer(write("kept0.heic")));
        QCOMPARE(m_launcher->launched.load(), 26);
    }

    void shouldEndItsWorkersWhenItGoes()
    {
        const auto requests = askForHeld(1);
        m_store.reset();
        QCOMPARE(m_launcher->running.load(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(m_answered, 0);
    }
};

QTEST_GUILESS_MAIN(ThumbnailStoreTest)
#include "ThumbnailStoreTest.moc"
