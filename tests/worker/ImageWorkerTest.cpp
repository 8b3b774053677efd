#include "ImageWorker.h"

#include "ImageWorkerLauncher.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>

namespace {

FileDescriptor fileHolding(const QByteArray &content, const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("source"));
    QFile file(path);
    file.open(QFile::WriteOnly);
    file.write(content);
    file.close();
    return FileDescriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
}

qsizetype openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

bool hasChildren()
{
    siginfo_t status = {};
    return ::waitid(P_ALL, 0, &status, WEXITED | WNOHANG | WNOWAIT) == 0;
}

/// Photos need no time to read in these tests; orders that hang are ended soon.
constexpr ImageWorkerLimits ShortLimits{.open = std::chrono::milliseconds(300),
                                        .write = std::chrono::milliseconds(5000),
                                        .perMegapixel = std::chrono::milliseconds(0)};

} // namespace

class ImageWorkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldContainEveryDisobedience_data()
    {
        QTest::addColumn<QByteArray>("order");
        for (const char *order :
             {"open", "create", "socket", "exec", "fork", "vfork", "ptrace", "write-source",
              "truncate-source", "allocate", "crash", "spin", "sleep", "huge", "negative", "nonsense"}) {
            QTest::newRow(order) << QByteArray(order);
        }
    }
    void shouldContainEveryDisobedience()
    {
        QFETCH(QByteArray, order);
        const QTemporaryDir folder;
        const FileDescriptor source = fileHolding(order, folder);
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(DISOBEDIENT_WORKER), ShortLimits);
        const auto opened = launcher->launch()->open(source);
        QVERIFY(!opened);
        QCOMPARE(opened.error(), ImageWorkerFault::Unreadable);
        QFile file(folder.filePath(QStringLiteral("source")));
        QVERIFY(file.open(QFile::ReadOnly));
        QCOMPARE(file.readAll(), order);
        QVERIFY(!hasChildren());
    }

    void shouldEndAWriteThatNeverEnds()
    {
        const QTemporaryDir folder;
        const FileDescriptor source = fileHolding("endless-write", folder);
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(DISOBEDIENT_WORKER), ShortLimits);
        const auto worker = launcher->launch();
        QVERIFY(worker->open(source));
        const FileDescriptor output(::memfd_create("output", MFD_CLOEXEC));
        const auto written = worker->write(output, ImageFormat::Png, 1);
        QVERIFY(!written);
        QCOMPARE(written.error(), ImageWorkerFault::CannotWrite);
        QVERIFY(::lseek(output.number(), 0, SEEK_END) <= qint64(2) << 30);
    }

    void shouldTakeAProgramThatCannotStartForAFault_data()
    {
        QTest::addColumn<QString>("program");
        QTest::newRow("missing") << QStringLiteral("/nowhere/lumaport-imageworker");
        QTest::newRow("a folder") << QStringLiteral("/tmp");
        QTest::newRow("another program") << QStringLiteral("/bin/true");
        QTest::newRow("a program that waits") << QStringLiteral("/bin/cat");
    }
    void shouldTakeAProgramThatCannotStartForAFault()
    {
        QFETCH(QString, program);
        const QTemporaryDir folder;
        const FileDescriptor source = fileHolding("x", folder);
        const auto launcher = ImageWorkerLauncher::create(program, ShortLimits);
        launcher->prepare();
        QVERIFY(!launcher->launch()->open(source));
        QVERIFY(!launcher->launch()->open(source));
    }

    void shouldRefuseWorkAfterAllHaveBeenEnded()
    {
        const QTemporaryDir folder;
        const FileDescriptor source = fileHolding("x", folder);
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const auto before = launcher->launch();
        launcher->endAll();
        QVERIFY(!before->open(source));
        QVERIFY(!launcher->launch()->open(source));
    }

    void shouldMakeThumbnailsOfWhatItCanRead()
    {
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("source.png"));
        QVERIFY(image.save(path));
        const FileDescriptor source(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const auto worker = launcher->launch();
        const auto size = worker->open(source);
        QVERIFY(size);
        QCOMPARE(size->width, 400);
        const auto thumbnail = worker->thumbnail(240);
        QVERIFY(thumbnail);
        const QImage small = QImage::fromData(*thumbnail, "PNG");
        QCOMPARE(small.size(), QSize(240, 180));
        QCOMPARE(small.pixelColor(100, 100), QColor(Qt::darkCyan));
    }

    void shouldLeaveNothingBehindAfterManyPhotos()
    {
        const QTemporaryDir folder;
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QString good = folder.filePath(QStringLiteral("good.png"));
        QVERIFY(image.save(good));
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const qsizetype before = openDescriptors();
        int converted = 0;
        constexpr int Photos = 500;
        for (int photo = 0; photo < Photos; ++photo) {
            const bool isGood = photo % 2 == 0;
            const FileDescriptor source =
                isGood ? FileDescriptor(::open(QFile::encodeName(good).constData(), O_RDONLY | O_CLOEXEC))
                       : fileHolding(QByteArray("\0\0\0\x18"
                                                "ftypheic",
                                                12) +
                                         QByteArray::number(photo),
                                     folder);
            launcher->prepare();
            const auto worker = launcher->launch();
            const FileDescriptor output(::memfd_create("output", MFD_CLOEXEC));
            converted += worker->open(source) && worker->write(output, ImageFormat::Jpeg, 0.9) ? 1 : 0;
        }
        QCOMPARE(converted, Photos / 2);
        launcher->endAll();
        QVERIFY(openDescriptors() <= before);
        QVERIFY(!hasChildren());
    }
};

QTEST_GUILESS_MAIN(ImageWorkerTest)
#include "ImageWorkerTest.moc"
