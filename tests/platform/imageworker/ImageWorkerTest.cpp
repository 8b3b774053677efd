#include "ImageWorker.h"

#include "ImageWorkerLauncher.h"
#include "WorkerCount.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

#include <array>
#include <csignal>
#include <future>
#include <linux/landlock.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

namespace {

/// A file in memory, open for reading and writing.
FileDescriptor fileHolding(const QByteArray &content)
{
    FileDescriptor file(::memfd_create("source", MFD_CLOEXEC));
    const ssize_t written =
        ::pwrite(file.number(), content.constData(), static_cast<std::size_t>(content.size()), 0);
    return written == content.size() ? std::move(file) : FileDescriptor();
}

QByteArray contentOf(const FileDescriptor &file)
{
    QByteArray content(100, Qt::Uninitialized);
    content.resize(::pread(file.number(), content.data(), static_cast<std::size_t>(content.size()), 0));
    return content;
}

QByteArray contentOf(int process, const char *file)
{
    QFile content(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(file)));
    return content.open(QFile::ReadOnly) ? content.readAll() : "missing";
}

QByteArray pngOf(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QBuffer file;
    image.save(&file, "PNG");
    return file.data();
}

/// Why a new worker does not open @p source; none when it does.
std::optional<ImageWorkerFault> faultOf(ImageWorkerLauncher &launcher, const FileDescriptor &source)
{
    const auto opened = launcher.launch()->open(source);
    return opened ? std::nullopt : std::optional(opened.error());
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

void addNames(const QByteArray &names)
{
    QTest::addColumn<QByteArray>("name");
    for (const QByteArray &name : names.split(' ')) {
        QTest::newRow(name) << name;
    }
}

/// For workers that hang: they do so for the shorter time.
constexpr ImageWorkerLimits ShortToStart{.start = std::chrono::seconds(2)};
constexpr ImageWorkerLimits ShortToOpen{.open = std::chrono::milliseconds(200)};

} // namespace

class ImageWorkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (::prctl(PR_GET_SECCOMP) < 0) {
            QSKIP("system call filters do not work here, as in an emulator; no worker starts");
        }
    }

    void shouldContainHostileWorkers_data()
    {
        addNames("open look create socket exec fork clone vfork ptrace truncate-source slow-group "
                 "limits-of-parent change-limit unlimited-time unlimited-files unlimited-threads allocate "
                 "allocate-data send-descriptor crash spin sleep huge flat negative nonsense");
    }
    void shouldContainHostileWorkers()
    {
        QFETCH(QByteArray, name);
        const bool hangs = name == "spin" || name == "sleep";
        const FileDescriptor source = fileHolding(name);
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(HOSTILE_WORKER),
                                                          hangs ? ShortToOpen : ImageWorkerLimits());
        QCOMPARE(faultOf(*launcher, source), ImageWorkerFault::Unreadable);
        QCOMPARE(contentOf(source), name);
        QTRY_COMPARE(workerCount(), 0);
        // The next photo has a worker of its own.
        const auto worker = launcher->launch();
        QVERIFY(worker->open(fileHolding("endless-write")));
        QCOMPARE(workerCount(), 1);
    }

    void shouldCloseTheFileSystemEvenWithoutTheCallFilter_data()
    {
        addNames("open-unfiltered create-unfiltered exec-unfiltered");
    }
    void shouldCloseTheFileSystemEvenWithoutTheCallFilter()
    {
        if (::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) <= 0) {
            QSKIP("this kernel has no Landlock");
        }
        QFETCH(QByteArray, name);
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(UNFILTERED_WORKER), {});
        QCOMPARE(faultOf(*launcher, fileHolding(name)), ImageWorkerFault::Unreadable);
        // What only the filter forbids succeeds, so the filter is missing.
        QVERIFY(!faultOf(*launcher, fileHolding("slow-group")));
    }

    void shouldLimitTheSizeOfTheOutput()
    {
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(HOSTILE_WORKER), {});
        const auto worker = launcher->launch();
        QVERIFY(worker->open(fileHolding("endless-write")));
        const FileDescriptor output = fileHolding({});
        const auto written = worker->write(output, OutputFormat::png, 1);
        QVERIFY(!written);
        QCOMPARE(written.error(), ImageWorkerFault::CannotWrite);
        QVERIFY(::lseek(output.number(), 0, SEEK_END) <= qint64(2) << 30);
    }

    void shouldTrustNoAnswer_data()
    {
        addNames("png-for-jpeg empty-copy huge-copy wide-preview negative-preview grown-preview");
    }
    void shouldTrustNoAnswer()
    {
        QFETCH(QByteArray, name);
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(HOSTILE_WORKER), {});
        const auto worker = launcher->launch();
        QVERIFY(worker->open(fileHolding(name)));
        const auto fault = name.endsWith("preview")
                               ? worker->thumbnail(240).map([](const QImage & /*picture*/) {})
                               : worker->write(fileHolding({}), OutputFormat::jpeg, 1);
        QVERIFY(!fault);
        QCOMPARE(fault.error(), ImageWorkerFault::Unreadable);
    }

    void shouldGiveWorkersWhatTheirPhotoNeedsAndLetThemGoFirst()
    {
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const auto worker = launcher->launch();
        const int forkServer = childrenOf(::getpid()).first();
        const int process = childrenOf(forkServer).first();
        QCOMPARE(contentOf(process, "oom_score_adj"), "1000\n");
        constexpr rlim_t Mebibyte = 1U << 20U;
        QVERIFY(worker->open(fileHolding(pngOf({4000, 3000}))));
        rlimit memory = {};
        QCOMPARE(::prlimit(process, RLIMIT_DATA, nullptr, &memory), 0);
        const rlim_t threads = std::clamp(std::thread::hardware_concurrency(), 1U, 16U);
        QVERIFY(memory.rlim_max >= 250 * Mebibyte && memory.rlim_max < (330 + 16 * threads) * Mebibyte);
    }

    void shouldStopWorkersUntilTheyMayGoOn()
    {
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const auto stateOf = [](qsizetype index) {
            const int forkServer = childrenOf(::getpid()).first();
            return contentOf(childrenOf(forkServer).value(index), "stat").split(' ').value(2);
        };
        const auto before = launcher->launch();
        launcher->pause();
        const auto after = launcher->launch();
        QTRY_COMPARE(stateOf(0) + stateOf(1), "TT");
        launcher->resume();
        QVERIFY(before->open(fileHolding(pngOf({8, 8}))) && after->open(fileHolding(pngOf({8, 8}))));
    }

    void shouldKeepWorkersOfAForkServerThatStalls()
    {
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), ShortToStart);
        auto worker = launcher->launch();
        const int stalled = childrenOf(::getpid()).first();
        ::kill(stalled, SIGSTOP);
        const FileDescriptor source = fileHolding(pngOf({8, 8}));
        QVERIFY(!faultOf(*launcher, source)); // by another fork server
        QVERIFY(worker->open(source));
        worker.reset();
        QCOMPARE(childrenOf(::getpid()).count(stalled), 0);
    }

    void shouldHandNothingToAProgramThatIsNoWorker_data()
    {
        addNames("/nowhere/lumaport-imageworker /tmp /bin/true /usr/bin/yes");
        QTest::newRow("not locked down") << QByteArray(UNLOCKED_WORKER);
    }
    void shouldHandNothingToAProgramThatIsNoWorker()
    {
        QFETCH(QByteArray, name);
        const bool hangs = name.endsWith("yes");
        const auto launcher = ImageWorkerLauncher::create(QString::fromLocal8Bit(name),
                                                          hangs ? ShortToStart : ImageWorkerLimits());
        launcher->prepare();
        for (int attempt = 0; attempt < 2; ++attempt) {
            QCOMPARE(faultOf(*launcher, fileHolding("x")), ImageWorkerFault::NotLockedDown);
        }
    }

    void shouldStartAnotherForkServerWhenItsOwnWasKilled()
    {
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        launcher->prepare();
        for (int death = 0; death < 2; ++death) { // with a worker prepared, and with none
            QTRY_COMPARE(childrenOf(::getpid()).size(), 1);
            ::kill(childrenOf(::getpid()).first(), SIGKILL);
            QVERIFY(!faultOf(*launcher, fileHolding(pngOf({8, 8}))));
        }
    }

    void shouldRefuseWorkAfterAllHaveBeenEnded()
    {
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const auto before = launcher->launch();
        launcher->prepare();
        launcher->endAll();
        const FileDescriptor source = fileHolding(pngOf({8, 8}));
        QVERIFY(!before->open(source));
        QVERIFY(faultOf(*launcher, source));
    }

    void shouldMakeThumbnails()
    {
        const auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const auto worker = launcher->launch();
        QVERIFY(worker->open(fileHolding(pngOf({400, 300}))));
        const auto thumbnail = worker->thumbnail(240);
        QVERIFY(thumbnail);
        QCOMPARE(thumbnail->size(), QSize(240, 180));
        QCOMPARE(thumbnail->pixelColor(239, 179), QColor(Qt::darkCyan));
    }

    void shouldLeaveNothingBehindAfterManyPhotos()
    {
        constexpr int Threads = 4;
        constexpr int PhotosOfThread = 125;
        const QByteArray good = pngOf({64, 48});
        const std::array sources = {good, good.left(good.size() / 2), good,
                                    QByteArray("\0\0\0\x18"
                                               "ftypheic",
                                               12)};
        const qsizetype before = openDescriptors();
        auto launcher = ImageWorkerLauncher::create(QStringLiteral(IMAGE_WORKER), {});
        const auto convertMany = [&launcher, &sources] {
            int converted = 0;
            for (std::size_t photo = 0; photo < PhotosOfThread; ++photo) {
                launcher->prepare();
                const auto worker = launcher->launch();
                converted += worker->open(fileHolding(sources[photo % sources.size()])) &&
                                     worker->write(fileHolding({}), OutputFormat::jpeg, 0.9)
                                 ? 1
                                 : 0;
            }
            return converted;
        };
        std::vector<std::future<int>> threads(Threads);
        for (auto &thread : threads) {
            thread = std::async(std::launch::async, convertMany);
        }
        for (auto &thread : threads) {
            QCOMPARE(thread.get(), PhotosOfThread / 2 + 1);
        }
        QTRY_VERIFY(workerCount() <= 1); // the prepared one
        launcher.reset();
        QCOMPARE(openDescriptors(), before);
        QVERIFY(!hasChildren());
    }
};

QTEST_GUILESS_MAIN(ImageWorkerTest)
#include "ImageWorkerTest.moc"
