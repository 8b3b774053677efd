// thumbnail SOURCE: one preview of 240 pixels, as the window shows them, by an image worker of its own. Exit
// status 1 when there is none.

#include "ImageWorker.h"
#include "ImageWorkerLauncher.h"
#include "WorkerCount.h"

#include <QCoreApplication>
#include <QTextStream>

#include <fcntl.h>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        QTextStream(stderr) << "usage: thumbnail SOURCE\n";
        return 2;
    }
    const auto launcher = ImageWorkerLauncher::create();
    launcher->prepare();
    const FileDescriptor photo(::open(argv[1], O_RDONLY | O_CLOEXEC));
    auto worker = launcher->launch();
    constexpr int side = 240;
    const bool isDone = photo.isOpen() && worker->open(photo) && worker->thumbnail(side);
    worker.reset();
    awaitBookingOfWorkers();
    return isDone ? 0 : 1;
}
