#include "ThumbnailStore.h"

#include "PaintedPhotos.h"

#include <QTemporaryDir>
#include <QTest>

#include <optional>

class ThumbnailStoreTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    std::shared_ptr<PaintedPhotos> m_photos;
    std::unique_ptr<ThumbnailStore> m_store;

    QUrl write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
        return QUrl::fromLocalFile(file.fileName());
    }

    // The store's answer, waited for; none when there is none within the test's patience.
    std::optional<QImage> answer(const QUrl &url)
    {
        std::optional<QImage> result;
        const auto request = m_store->image(url, [&](const QImage &image) { result = image; });
        (void)QTest::qWaitFor([&] { return result.has_value(); });
        return result;
    }

    /// Asks for previews of new photos, which wait for the gate; counts those that are answered.
    std::vector<std::unique_ptr<ThumbnailRequest>> askForHeld(int count, const QString &names, int &answered)
    {
        m_photos->hold();
        std::vector<std::unique_ptr<ThumbnailRequest>> requests;
        for (int i = 0; i < count; ++i) {
            requests.push_back(
                m_store->image(write(names.arg(i), "red"), [&answered](const QImage &) { ++answered; }));
        }
        return requests;
    }

private Q_SLOTS:
    void init()
    {
        m_photos = std::make_shared<PaintedPhotos>();
        m_store = std::make_unique<ThumbnailStore>(m_photos);
    }
    void cleanup() { m_store.reset(); }

    void shouldAnswerAtOnceTheSecondTime()
    {
        const QUrl photo = write(QStringLiteral("one.heic"), "red");
        const auto first = answer(photo);
        QVERIFY(first);
        QCOMPARE(first->size(), QSize(240, 180));
        QCOMPARE(first->pixelColor(100, 100), QColor(Qt::red));

        bool isAnswered = false;
        const auto request =
            m_store->image(photo, [&](const QImage &image) { isAnswered = !image.isNull(); });
        QVERIFY2(isAnswered, "before the call returns");
        QVERIFY(!request);
        QCOMPARE(m_photos->launched.load(), 1);
    }

    void shouldShowTheKeptPictureOfAFileThatWasReplaced()
    {
        const QUrl photo = write(QStringLiteral("same.heic"), "red");
        QVERIFY(answer(photo));
        write(QStringLiteral("same.heic"), "blue");
        QCOMPARE(answer(photo)->pixelColor(0, 0), QColor(Qt::red));
    }

    void shouldGiveNothingForWhatIsNoPhotoAndReadItAgainNextTime()
    {
        const QUrl photo = write(QStringLiteral("late.heic"), "not a colour");
        const auto nothing = answer(photo);
        QVERIFY(nothing && nothing->isNull());
        write(QStringLiteral("late.heic"), "green");
        QVERIFY(!answer(photo)->isNull());
        const auto missing = answer(QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("missing.heic"))));
        QVERIFY(missing && missing->isNull());
        const auto folder = answer(QUrl::fromLocalFile(m_folder.path()));
        QVERIFY(folder && folder->isNull());
    }

    void shouldNeverReadMoreThanTwoAtATime()
    {
        int answered = 0;
        auto requests = askForHeld(6, QStringLiteral("many%1.heic"), answered);
        QTRY_COMPARE(m_photos->running.load(), 2);
        m_photos->gate.release(6);
        QTRY_COMPARE(answered, 6);
        QCOMPARE(m_photos->mostRunning.load(), 2);
    }

    void shouldNotReadWhatWasGivenUpBeforeItsTurn()
    {
        int answered = 0;
        auto requests = askForHeld(4, QStringLiteral("turn%1.heic"), answered);
        QTRY_COMPARE(m_photos->running.load(), 2);
        requests[2].reset();
        m_photos->gate.release(4);
        QTRY_COMPARE(answered, 3);
        QCOMPARE(m_photos->launched.load(), 3);
    }

    void shouldDropTheAnswerOfACancelledRequestAndKeepNothing()
    {
        const QUrl photo = write(QStringLiteral("gone.heic"), "red");
        m_photos->hold();
        bool isAnswered = false;
        auto request = m_store->image(photo, [&](const QImage &) { isAnswered = true; });
        QTRY_COMPARE(m_photos->running.load(), 1);
        request.reset();
        m_photos->gate.release(2);
        QTRY_COMPARE(m_photos->running.load(), 0);
        QVERIFY(answer(photo)); // comes after the dropped one, and needs a worker of its own
        QVERIFY(!isAnswered);
        QCOMPARE(m_photos->launched.load(), 2);
    }

    void shouldKeepTheLatest24()
    {
        QList<QUrl> photos;
        for (int i = 0; i < 25; ++i) {
            photos.append(write(QStringLiteral("kept%1.heic").arg(i), "red"));
            QVERIFY(answer(photos.last()));
        }
        QVERIFY(answer(photos.last()));
        QCOMPARE(m_photos->launched.load(), 25);
        QVERIFY(answer(photos.first()));
        QCOMPARE(m_photos->launched.load(), 26);
    }

    void shouldEndItsWorkersWhenItGoes()
    {
        m_photos->hold();
        bool isAnswered = false;
        const auto request = m_store->image(write(QStringLiteral("held.heic"), "red"),
                                            [&](const QImage &) { isAnswered = true; });
        QTRY_COMPARE(m_photos->running.load(), 1);
        m_store.reset();
        QCOMPARE(m_photos->running.load(), 0);
        QCoreApplication::processEvents();
        QVERIFY(!isAnswered);
    }
};

QTEST_GUILESS_MAIN(ThumbnailStoreTest)
#include "ThumbnailStoreTest.moc"
