#include "ImageWorker.h"

#include "ImageWorkerLauncher.h"
#include "ImageWorkerTools.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/mman.h>
#include <sys/syscall.h>

namespace {

/// Open for writing, too: only the lock-down stands in the way.
FileDescriptor fileHolding(const QByteArray &content, const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("source"));
    QFile file(path);
    file.open(QFile::WriteOnly);
    file.write(content);
    file.close();
    return FileDescriptor(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC));
}

/// Whether the kernel can close the file system to a process.
bool hasLandlock()
{
    return ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) > 0;
}

/// For workers that hang: the shorter of these is how long that lasts.
constexpr ImageWorkerLimits ShortToStart{.start = std::chrono::milliseconds(200)};
constexpr ImageWorkerLimits ShortToOpen{.open = std::chrono::milliseconds(200)};

} // namespace

class ImageWorkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldContainEveryDisobedience_data()
    {
        QTest::addColumn<QByteArray>("order");
        for (const char *order : {"open",
                                  "look",
                                  "create",
                                  "socket",
                                  "exec",
                                  "fork",
                                  "clone",
                                  "vfork",
                                  "ptrace",
                                  "truncate-source",
                                  "slow-group",
                                  "limits-of-another",
                                  "change-limit",
                                  "unlimited-time",
                                  "unlimited-files",
                                  "allocate",
                                  "crash",
                                  "spin",
                                  "sleep",
                                  "huge",
                                  "negative",
                                  "nonsense"}) {
            QTest::newRow(order) << QByteArray(order);
        }
    }
    void shouldContainEveryDisobedience()
    {
        QFETCH(QByteArray, order);
        const bool hangs = order == "spin" || order == "sleep";
        const QTemporaryDir folder;
        const FileDescriptor source = fileHolding(order, folder);
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(DISOBEDIENT_WORKER),
                                                          hangs ? ShortToOpen : ImageWorkerLimits());
        const auto opened = launcher->launch()->open(source);
        QVERIFY(!opened);
        QCOMPARE(opened.error(), ImageWorkerFault::Unreadable);
        QFile file(folder.filePath(QStringLiteral("source")));
        QVERIFY(file.open(QFile::ReadOnly));
        QCOMPARE(file.readAll(), order);
        QTRY_COMPARE(workerCount(), 0);
    }
    void shouldCloseTheFileSystemEvenWithoutTheFilterOfCalls_data()
    {
        QTest::addColumn<QByteArray>("order");
        for (const char *order : {"open-unfiltered", "create-unfiltered", "exec-unfiltered"}) {
            QTest::newRow(order) << QByteArray(order);
        }
    }
    void shouldCloseTheFileSystemEvenWithoutTheFilterOfCalls()
    {
        if (!hasLandlock()) {
            QSKIP("this kernel has no Landlock");
        }
        QFETCH(QByteArray, order);
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(UNFILTERED_WORKER), {});
        const auto opened = launcher->launch()->open(memoryHolding(order));
        QVERIFY(!opened);
        QCOMPARE(opened.error(), ImageWorkerFault::Unreadable);
        // It is the filter that is missing: what Landlock does not know of passes.
        QVERIFY(launcher->launch()->open(memoryHolding("slow-group")));
    }
    void shouldReachAWorkerThatObeys()
    {
        // Else the orders above would fail for want of a worker.
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(DISOBEDIENT_WORKER), {});
        QVERIFY(!launcher->launch()->open(memoryHolding("crash")));
        const auto worker = launcher->launch();
        QVERIFY(worker->open(memoryHolding("answer")));
        QCOMPARE(workerCount(), 1);
    }

    void shouldEndAWriteThatNeverEnds()
    {
        const QTemporaryDir folder;
        const FileDescriptor source = fileHolding("endless-write", folder);
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(DISOBEDIENT_WORKER), {});
        const auto worker = launcher->launch();
        QVERIFY(worker->open(source));
        const FileDescriptor output(::memfd_create("output", MFD_CLOEXEC));
        const auto written = worker->write(output, ImageFormat::Png, 1);
        QVERIFY(!written);
        QCOMPARE(written.error(), ImageWorkerFault::CannotWrite);
        QVERIFY(::lseek(output.number(), 0, SEEK_END) <= qint64(2) << 30);
    }

    void shouldHandNothingToAProgramThatIsNoWorker_data()
    {
        QTest::addColumn<QString>("program");
        QTest::newRow("missing") << QStringLiteral("/nowhere/lumaport-imageworker");
        QTest::newRow("a folder") << QStringLiteral("/tmp");
        QTest::newRow("another program") << QStringLiteral("/bin/true");
        QTest::newRow("a program that waits") << QStringLiteral("/bin/sleep");
    }
    void shouldHandNothingToAProgramThatIsNoWorker()
    {
        QFETCH(QString, program);
        const auto launcher = ImageWorkerLauncher::create(program, ShortToStart);
        launcher->prepare();
        for (int attempt = 0; attempt < 2; ++attempt) {
            const auto opened = launcher->launch()->open(memoryHolding("x"));
            QVERIFY(!opened);
            QCOMPARE(opened.error(), ImageWorkerFault::NotLockedDown);
        }
    }

    void shouldRefuseWorkAfterAllHaveBeenEnded()
    {
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const auto before = launcher->launch();
        launcher->endAll();
        const FileDescriptor source = memoryHolding(pngOf({8, 8}));
        for (const auto &opened : {before->open(source), launcher->launch()->open(source)}) {
            QVERIFY(!opened);
            QCOMPARE(opened.error(), ImageWorkerFault::Unreadable); // the program is not to blame
        }
    }

    void shouldMakeThumbnailsOfWhatItCanRead()
    {
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const auto worker = launcher->launch();
        const auto size = worker->open(memoryHolding(pngOf({400, 300})));
        QVERIFY(size);
        QCOMPARE(size->width, 400);
        const auto thumbnail = worker->thumbnail(240);
        QVERIFY(thumbnail);
        const QImage small = QImage::fromData(*thumbnail, "PNG");
        QCOMPARE(small.size(), QSize(240, 180));
        QCOMPARE(small.pixelColor(100, 100), QColor(Qt::darkCyan));
    }
};

QTEST_GUILESS_MAIN(ImageWorkerTest)
#include "ImageWorkerTest.moc"
