#include "ConversionEngine.h"

#include "FakeImageWorker.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <sys/stat.h>

namespace {

ConversionSettings settings(OutputFormat format, OutputLocation location,
                            OriginalPolicy policy = OriginalPolicy::keep)
{
    return {.format = format, .outputLocation = location, .originalPolicy = policy, .jpegQuality = 0.65};
}

const ConversionSettings jpegBeside = settings(OutputFormat::jpeg, OutputLocation::alongside);
const ConversionSettings pngBelow = settings(OutputFormat::png, OutputLocation::convertedFolder);
const ConversionSettings archived =
    settings(OutputFormat::png, OutputLocation::alongside, OriginalPolicy::archive);

} // namespace

/// The engine's own work: names, folders, the order of the steps, and what it leaves behind when something
/// fails.
class ConversionEngineTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder->path() + QLatin1Char('/') + name; }
    QStringList tree() const
    {
        QStringList names;
        for (const QString &name :
             QDir(m_folder->path())
                 .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot)) {
            names << name;
            for (const QString &inner : QDir(path(name)).entryList(QDir::Files)) {
                names << name + QLatin1Char('/') + inner;
            }
        }
        return names;
    }
    void write(const QString &name, const QByteArray &bytes = "photo") const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }
    ConversionOutcome convert(const QString &name, const ConversionSettings &with) const
    {
        std::optional<ConversionOutcome> result;
        QEventLoop loop;
        m_engine->convert(QUrl::fromLocalFile(path(name)), with, &loop,
                          [&](const ConversionOutcome &outcome) {
                              result = outcome;
                              loop.quit();
                          });
        loop.exec();
        return *result;
    }
    QString converted(const QString &name, const ConversionSettings &with) const
    {
        const auto outcome = convert(name, with);
        return outcome ? QDir(m_folder->path()).relativeFilePath(outcome->outputURL.toLocalFile())
                       : description(outcome.error());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<FakeImageWorkerLauncher> m_launcher;
    std::unique_ptr<ConversionEngine> m_engine;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_launcher = std::make_shared<FakeImageWorkerLauncher>();
        m_engine = ConversionEngine::create(m_launcher);
        write(QStringLiteral("IMG_1.HEIC"));
    }

    void shouldWriteBesideTheSourceOrIntoItsSubfolder()
    {
        const mode_t userMask = ::umask(0027);
        QCOMPARE(converted(QStringLiteral("IMG_1.HEIC"), jpegBeside), QStringLiteral("IMG_1.jpg"));
        ::umask(userMask);
        QCOMPARE(content(QStringLiteral("IMG_1.jpg")), "jpeg 0.650000");
        struct stat copy = {};
        QCOMPARE(::stat(qPrintable(path(QStringLiteral("IMG_1.jpg"))), &copy), 0);
        QCOMPARE(copy.st_mode & 07777U, 0640U);
        QCOMPARE(converted(QStringLiteral("IMG_1.HEIC"), pngBelow), QStringLiteral("Lumaport/IMG_1.png"));
        QCOMPARE(converted(QStringLiteral("IMG_1.HEIC"), pngBelow), QStringLiteral("Lumaport/IMG_1 2.png"));
        write(QStringLiteral("a.b.Heif"));
        QCOMPARE(converted(QStringLiteral("a.b.Heif"), pngBelow), QStringLiteral("Lumaport/a.b.png"));
        QCOMPARE(content(QStringLiteral("IMG_1.HEIC")), "photo");
    }

    void shouldKeepANameThatBeginsWithAColonInItsFolder()
    {
        write(QStringLiteral(":1.heic"));
        QCOMPARE(converted(QStringLiteral(":1.heic"), jpegBeside), QStringLiteral(":1.jpg"));
        QCOMPARE(converted(QStringLiteral(":1.heic"), pngBelow), QStringLiteral("Lumaport/:1.png"));
        QCOMPARE(converted(QStringLiteral(":1.heic"), archived), QStringLiteral(":1.png"));
        QCOMPARE(content(QStringLiteral("Originals/:1.heic")), "photo");
    }

    void shouldNumberTheNameOnAClash()
    {
        write(QStringLiteral("IMG_1.jpg"), "mine");
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("IMG_1 2.jpg")));
        QVERIFY(QFile::link(QStringLiteral("/nowhere"), path(QStringLiteral("IMG_1 3.jpg"))));
        QCOMPARE(converted(QStringLiteral("IMG_1.HEIC"), jpegBeside), QStringLiteral("IMG_1 4.jpg"));
        QCOMPARE(content(QStringLiteral("IMG_1.jpg")), "mine");
    }

    void shouldNumberANameThatWasTakenMeanwhile()
    {
        m_launcher->worker.afterWriting = [this] { write(QStringLiteral("IMG_1.jpg"), "quick"); };
        QCOMPARE(converted(QStringLiteral("IMG_1.HEIC"), jpegBeside), QStringLiteral("IMG_1 2.jpg"));
        QCOMPARE(content(QStringLiteral("IMG_1.jpg")), "quick");
    }

    void shouldArchiveTheOriginalAfterItsCopyIsWritten()
    {
        const auto outcome = convert(QStringLiteral("IMG_1.HEIC"), archived);
        QVERIFY(outcome);
        QCOMPARE(outcome->sourceURL, QUrl::fromLocalFile(path(QStringLiteral("IMG_1.HEIC"))));
        write(QStringLiteral("IMG_1.HEIC"), "second");
        QVERIFY(convert(QStringLiteral("IMG_1.HEIC"), archived));
        QCOMPARE(tree(), QStringList({QStringLiteral("IMG_1 2.png"), QStringLiteral("IMG_1.png"),
                                      QStringLiteral("Originals"), QStringLiteral("Originals/IMG_1 2.HEIC"),
                                      QStringLiteral("Originals/IMG_1.HEIC")}));
        QCOMPARE(content(QStringLiteral("Originals/IMG_1 2.HEIC")), "second");
    }

    void shouldKeepTheCopyWhenTheOriginalCannotBeArchived()
    {
        write(QStringLiteral("Originals"), "a file");
        QCOMPARE(converted(QStringLiteral("IMG_1.HEIC"), archived),
                 QStringLiteral("The image converted, but its original could not be archived."));
        QVERIFY(QFile::exists(path(QStringLiteral("IMG_1.png"))) &&
                QFile::exists(path(QStringLiteral("IMG_1.HEIC"))));
        QCOMPARE(content(QStringLiteral("Originals")), "a file");
    }

    void shouldTellTheSystemsErrorWhenTheSubfolderCannotBeMade()
    {
        write(QStringLiteral("Lumaport"), "a file");
        const auto outcome = convert(QStringLiteral("IMG_1.HEIC"), pngBelow);
        QVERIFY(!outcome && std::holds_alternative<std::error_code>(outcome.error()));
        QVERIFY(!description(outcome.error()).isEmpty());
        QCOMPARE(tree(), QStringList({QStringLiteral("IMG_1.HEIC"), QStringLiteral("Lumaport")}));
    }

    void shouldCreateNothingForWhatIsNoPhoto_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("sentence");
        const QString unsupported = QStringLiteral("This file is not a HEIC or HEIF image.");
        const QString unreadable =
            QStringLiteral("The image could not be opened. It may still be transferring.");
        QTest::newRow("other extension") << QStringLiteral("photo.jpg") << unsupported;
        QTest::newRow("longer extension") << QStringLiteral("photo.heics") << unsupported;
        QTest::newRow("no extension") << QStringLiteral("photo") << unsupported;
        QTest::newRow("missing") << QStringLiteral("missing.heic") << unreadable;
        QTest::newRow("folder") << QStringLiteral("folder.heic") << unreadable;
        QTest::newRow("pipe") << QStringLiteral("pipe.heic") << unreadable;
    }

    void shouldCreateNothingForWhatIsNoPhoto()
    {
        QFETCH(QString, name);
        QFETCH(QString, sentence);
        write(QStringLiteral("photo.jpg"));
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder.heic")));
        QCOMPARE(::mkfifo(qPrintable(path(QStringLiteral("pipe.heic"))), 0600), 0);
        const QStringList before = tree();
        QCOMPARE(converted(name, pngBelow), sentence);
        QCOMPARE(tree(), before);
    }

    void shouldLeaveNothingBehindWhenTheWorkerFails_data()
    {
        QTest::addColumn<bool>("whileOpening");
        QTest::addColumn<int>("fault");
        QTest::addColumn<QString>("sentence");
        QTest::addColumn<bool>("makesFolder");
        const QString unreadable =
            QStringLiteral("The image could not be opened. It may still be transferring.");
        QTest::newRow("open") << true << int(ImageWorkerFault::Unreadable) << unreadable << false;
        QTest::newRow("damage inside") << false << int(ImageWorkerFault::Unreadable) << unreadable << false;
        QTest::newRow("full disk") << false << int(ImageWorkerFault::CannotWrite)
                                   << QStringLiteral("The converted image could not be written.") << true;
        QTest::newRow("not locked down")
            << true << int(ImageWorkerFault::NotLockedDown)
            << QStringLiteral("Photos can’t be opened safely on this system, so nothing was converted.")
            << false;
    }

    void shouldLeaveNothingBehindWhenTheWorkerFails()
    {
        QFETCH(bool, whileOpening);
        QFETCH(int, fault);
        QFETCH(QString, sentence);
        QFETCH(bool, makesFolder);
        (whileOpening ? m_launcher->worker.openFault : m_launcher->worker.writeFault) =
            static_cast<ImageWorkerFault>(fault);
        QCOMPARE(converted(QStringLiteral("IMG_1.HEIC"), pngBelow), sentence);
        QStringList expected{QStringLiteral("IMG_1.HEIC")};
        if (makesFolder) {
            expected << QStringLiteral("Lumaport");
        }
        QCOMPARE(tree(), expected);
        QCOMPARE(content(QStringLiteral("IMG_1.HEIC")), "photo");
    }

    void shouldConvertOneAtATimeInTheOrderOfTheCalls()
    {
        std::atomic<int> running = 0;
        std::atomic<bool> overlapped = false;
        m_launcher->worker.afterWriting = [&] {
            ++running;
            for (int turn = 0; turn < 1000 && running == 1; ++turn) {
                QThread::yieldCurrentThread(); // a second one would come in here
            }
            overlapped = overlapped || running > 1;
            --running;
        };
        QStringList expected;
        QStringList names;
        for (int index = 1; index <= 20; ++index) {
            write(QStringLiteral("%1.heic").arg(index));
            expected << QStringLiteral("%1.jpg").arg(index);
            m_engine->convert(
                QUrl::fromLocalFile(path(QStringLiteral("%1.heic").arg(index))), jpegBeside, this,
                [&](const ConversionOutcome &outcome) { names << outcome->outputURL.fileName(); });
        }
        QTRY_COMPARE(names, expected);
        QVERIFY(!overlapped);
    }

    void shouldNotReportToAReceiverThatIsGone()
    {
        bool isReported = false;
        {
            QObject receiver;
            m_engine->convert(QUrl::fromLocalFile(path(QStringLiteral("IMG_1.HEIC"))), jpegBeside, &receiver,
                              [&](const auto &) { isReported = true; });
        }
        QVERIFY(convert(QStringLiteral("IMG_1.HEIC"), jpegBeside)); // the first is done by then
        QVERIFY(!isReported && QFile::exists(path(QStringLiteral("IMG_1.jpg"))));
    }

    void shouldDropWhatWaitsWhenItEnds()
    {
        QSemaphore begun;
        QSemaphore gate;
        m_launcher->worker.afterWriting = [&] {
            begun.release();
            gate.acquire();
        };
        m_launcher->whenEnded = [&] { gate.release(3); };
        bool isReported = false;
        for (int count = 0; count < 3; ++count) {
            m_engine->convert(QUrl::fromLocalFile(path(QStringLiteral("IMG_1.HEIC"))), jpegBeside, this,
                              [&](const auto &) { isReported = true; });
        }
        begun.acquire();
        m_engine.reset();
        QCoreApplication::processEvents();
        QVERIFY(!isReported);
        QCOMPARE(tree(), QStringList({QStringLiteral("IMG_1.HEIC"), QStringLiteral("IMG_1.jpg")}));
    }
};

QTEST_GUILESS_MAIN(ConversionEngineTest)
#include "ConversionEngineTest.moc"
