#include "ImageWorker.h"
#include "ImageWorkerLauncher.h"
#include "ImageWorkerTools.h"

#include <QDir>
#include <QTest>

#include <array>
#include <future>
#include <vector>

namespace {

qsizetype openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

} // namespace

class ManyPhotosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        const auto convertMany = [&launcher, &sources](int first) {
            int converted = 0;
            for (int photo = first; photo < first + PhotosOfThread; ++photo) {
                const FileDescriptor source =
                    memoryHolding(sources[static_cast<std::size_t>(photo) % sources.size()]);
                launcher->prepare();
                const auto worker = launcher->launch();
                const FileDescriptor output(::memfd_create("output", MFD_CLOEXEC));
                converted += worker->open(source) && worker->write(output, ImageFormat::Jpeg, 0.9) ? 1 : 0;
            }
            return converted;
        };
        std::vector<std::future<int>> threads;
        threads.reserve(Threads);
        for (int thread = 0; thread < Threads; ++thread) {
            threads.push_back(std::async(std::launch::async, convertMany, thread * PhotosOfThread));
        }
        int converted = 0;
        for (auto &thread : threads) {
            converted += thread.get();
        }
        QCOMPARE(converted, Threads * PhotosOfThread / 2);
        QTRY_VERIFY(workerCount() <= 1); // the one that stands ready
        launcher.reset();
        QCOMPARE(openDescriptors(), before);
        QVERIFY(!hasChildren());
    }
};

QTEST_GUILESS_MAIN(ManyPhotosTest)
#include "ManyPhotosTest.moc"
