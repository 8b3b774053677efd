#include "ConversionEngine.h"

#include "FakeImageWorkerLauncher.h"
#include "WriteFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

using Fault = std::optional<ImageWorkerFault>;

const ConversionSettings jpegBeside{
    .format = OutputFormat::jpeg, .outputLocation = OutputLocation::alongside, .jpegQuality = 0.65};
const ConversionSettings pngBelow{.outputLocation = OutputLocation::convertedFolder};
const ConversionSettings archived{.outputLocation = OutputLocation::alongside,
                                  .originalPolicy = OriginalPolicy::archive};

} // namespace

/// The engine's own work: names, folders, the order of the steps, and what it leaves behind when something
/// fails.
class ConversionEngineTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder->path() + '/' + name; }
    QUrl write(const QString &name, const QByteArray &content = "red") const
    {
        return writeFile(path(name), content);
    }
    /// Paths of all files and folders.
    QStringList tree() const
    {
        QStringList names;
        QDirIterator entries(m_folder->path(),
                             QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            names << QDir(m_folder->path()).relativeFilePath(entries.next());
        }
        names.sort();
        return names;
    }
    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "missing";
    }
    ConversionOutcome convert(const QString &name, const ConversionSettings &with)
    {
        std::optional<ConversionOutcome> result;
        m_engine->convert(QUrl::fromLocalFile(path(name)), with, this,
                          [&](const auto &outcome) { result = outcome; });
        while (!result) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return *result;
    }
    /// The copy's path, or the sentence of the failure.
    QString converted(const QString &name, const ConversionSettings &with)
    {
        const auto outcome = convert(name, with);
        return outcome ? QDir(m_folder->path()).relativeFilePath(outcome->outputURL.toLocalFile())
                       : description(outcome.error());
    }

    std::optional<QTemporaryDir> m_folder;
    std::shared_ptr<FakeImageWorkerLauncher> m_launcher;
    std::unique_ptr<ConversionEngine> m_engine;

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        m_launcher = std::make_shared<FakeImageWorkerLauncher>();
        m_engine = ConversionEngine::create(m_launcher);
        write("IMG_1.HEIC");
    }

    void shouldWriteBesideTheSourceOrIntoItsSubfolder()
    {
        const mode_t userMask = ::umask(0027);
        QCOMPARE(converted("IMG_1.HEIC", jpegBeside), "IMG_1.jpg");
        ::umask(userMask);
        QCOMPARE(content("IMG_1.jpg"), "jpeg 0.65");
        struct stat copy = {};
        QCOMPARE(::stat(qPrintable(path("IMG_1.jpg")), &copy), 0);
        QCOMPARE(copy.st_mode & 07777U, 0640U);
        QCOMPARE(converted("IMG_1.HEIC", pngBelow), "Lumaport/IMG_1.png");
        QCOMPARE(converted("IMG_1.HEIC", pngBelow), "Lumaport/IMG_1 2.png");
        QCOMPARE(content("IMG_1.HEIC"), "red");
        write("a.b.Heif");
        QCOMPARE(converted("a.b.Heif", pngBelow), "Lumaport/a.b.png");
        write(":1.heic"); // the toolkit takes paths with a colon in front for its own
        QCOMPARE(converted(":1.heic", jpegBeside), ":1.jpg");
        QCOMPARE(converted(":1.heic", pngBelow), "Lumaport/:1.png");
        QCOMPARE(converted(":1.heic", archived), ":1.png");
        QCOMPARE(content("Originals/:1.heic"), "red");
    }

    void shouldNumberTheNameOnAClash()
    {
        write("IMG_1.jpg", "mine");
        QVERIFY(QDir(m_folder->path()).mkdir("IMG_1 2.jpg"));
        QVERIFY(QFile::link("/nowhere", path("IMG_1 3.jpg")));
        m_launcher->afterWriting = [this] { write("IMG_1 4.jpg", "quick"); };
        QCOMPARE(converted("IMG_1.HEIC", jpegBeside), "IMG_1 5.jpg");
        QCOMPARE(content("IMG_1.jpg") + ' ' + content("IMG_1 4.jpg"), "mine quick");

        const QString longest(125, QChar(0xe9)); // with its extension 255 bytes
        write(longest + ".heic");
        write(longest + ".jpg", "mine");
        QCOMPARE(converted(longest + ".heic", jpegBeside), longest.left(124) + " 2.jpg");
    }

    void shouldArchiveTheOriginalAfterItsCopyIsWritten()
    {
        const auto outcome = convert("IMG_1.HEIC", archived);
        QVERIFY(outcome);
        QCOMPARE(outcome->sourceURL, write("IMG_1.HEIC", "blue"));
        QVERIFY(convert("IMG_1.HEIC", archived));
        QCOMPARE(tree(), (QStringList{"IMG_1 2.png", "IMG_1.png", "Originals", "Originals/IMG_1 2.HEIC",
                                      "Originals/IMG_1.HEIC"}));
        QCOMPARE(content("Originals/IMG_1 2.HEIC"), "blue");
    }

    void shouldKeepTheCopyWhenTheOriginalCannotBeArchived()
    {
        write("Originals", "a file");
        QCOMPARE(converted("IMG_1.HEIC", archived),
                 "The image converted, but its original could not be archived.");
        QCOMPARE(tree(), (QStringList{"IMG_1.HEIC", "IMG_1.png", "Originals"}));
    }

    void shouldTellTheSystemsErrorWhenTheSubfolderCannotBeMade()
    {
        write("Lumaport", "a file");
        const auto outcome = convert("IMG_1.HEIC", pngBelow);
        QVERIFY(!outcome && std::holds_alternative<std::error_code>(outcome.error()));
        QVERIFY(!description(outcome.error()).isEmpty());
        QCOMPARE(tree(), (QStringList{"IMG_1.HEIC", "Lumaport"}));
    }

    void shouldLeaveNothingBehindOfWhatItCannotConvert_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Fault>("openFault");
        QTest::addColumn<Fault>("writeFault");
        QTest::addColumn<QString>("sentence");
        const QString unsupported = "This file is not a HEIC or HEIF image.";
        const QString unreadable = "The image could not be opened. It may still be transferring.";
        const Fault none;
        QTest::newRow("other extension") << "photo.jpg" << none << none << unsupported;
        QTest::newRow("longer extension") << "photo.heics" << none << none << unsupported;
        QTest::newRow("no extension") << "photo" << none << none << unsupported;
        QTest::newRow("missing") << "missing.heic" << none << none << unreadable;
        QTest::newRow("folder") << "folder.heic" << none << none << unreadable;
        QTest::newRow("pipe") << "pipe.heic" << none << none << unreadable;
        QTest::newRow("no photo") << "text.heic" << none << none << unreadable;
        QTest::newRow("damage inside")
            << "IMG_1.HEIC" << none << Fault(ImageWorkerFault::Unreadable) << unreadable;
        QTest::newRow("full disk") << "IMG_1.HEIC" << none << Fault(ImageWorkerFault::CannotWrite)
                                   << "The converted image could not be written.";
        QTest::newRow("not locked down")
            << "IMG_1.HEIC" << Fault(ImageWorkerFault::NotLockedDown) << none
            << "Photos can’t be opened safely on this system, so nothing was converted.";
    }

    void shouldLeaveNothingBehindOfWhatItCannotConvert()
    {
        QFETCH(QString, name);
        QFETCH(Fault, openFault);
        QFETCH(Fault, writeFault);
        QFETCH(QString, sentence);
        m_launcher->openFault = openFault;
        m_launcher->writeFault = writeFault;
        write("photo.jpg");
        write("text.heic", "no colour");
        QVERIFY(QDir(m_folder->path()).mkdir("folder.heic"));
        QCOMPARE(::mkfifo(qPrintable(path("pipe.heic")), 0600), 0);
        const QStringList before = tree();
        QCOMPARE(converted(name, pngBelow), sentence);
        QStringList after = tree();
        QCOMPARE(after.removeOne("Lumaport"), writeFault == ImageWorkerFault::CannotWrite);
        QCOMPARE(after, before);
    }

    void shouldConvertOneAtATimeInTheOrderOfTheCalls()
    {
        QStringList expected;
        QStringList names;
        m_launcher->hold();
        for (int index = 1; index <= 20; ++index) {
            expected << QString("%1.jpg").arg(index);
            m_engine->convert(write(QString("%1.heic").arg(index)), jpegBeside, this,
                              [&](const auto &outcome) { names << outcome->outputURL.fileName(); });
        }
        m_launcher->gate.release(20);
        QTRY_COMPARE(names, expected);
        QCOMPARE(m_launcher->mostRunning.load(), 1);
    }

    void shouldNotReportToAReceiverThatIsGone()
    {
        bool isReported = false;
        {
            QObject receiver;
            m_engine->convert(QUrl::fromLocalFile(path("IMG_1.HEIC")), jpegBeside, &receiver,
                              [&](const auto &) { isReported = true; });
        }
        QCOMPARE(converted("IMG_1.HEIC", jpegBeside), "IMG_1 2.jpg"); // the first is done by then
        QVERIFY(!isReported);
    }

    void shouldDropWhatWaitsWhenItEnds()
    {
        m_launcher->hold();
        bool isReported = false;
        for (int count = 0; count < 3; ++count) {
            m_engine->convert(QUrl::fromLocalFile(path("IMG_1.HEIC")), jpegBeside, this,
                              [&](const auto &) { isReported = true; });
        }
        QTRY_COMPARE(m_launcher->running.load(), 1);
        m_engine.reset();
        QCoreApplication::processEvents();
        QVERIFY(!isReported);
        QCOMPARE(tree(), (QStringList{"IMG_1.HEIC", "IMG_1.jpg"}));
    }
};

QTEST_GUILESS_MAIN(ConversionEngineTest)
#include "ConversionEngineTest.moc"
