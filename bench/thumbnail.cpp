// thumbnail SOURCE [COUNT]: a preview of 240 pixels, as the window shows them, by an image worker of its own;
// COUNT times, one after another. Exit status 1 when there is none.

#include "ImageWorker.h"
#include "ImageWorkerLauncher.h"
#include "WorkerCount.h"

#include <QCoreApplication>
#include <QTextStream>

#include <fcntl.h>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int count = arguments.size() == 3 ? arguments[2].toInt() : 1;
    if (arguments.size() < 2 || count < 1) {
        QTextStream(stderr) << "usage: thumbnail SOURCE [COUNT]\n";
        return 2;
    }
    const auto launcher = ImageWorkerLauncher::create();
    launcher->prepare();
    const FileDescriptor photo(::open(argv[1], O_RDONLY | O_CLOEXEC));
    constexpr int side = 240;
    bool isDone = photo.isOpen();
    for (int made = 0; isDone && made < count; ++made) {
        const auto worker = launcher->launch();
        isDone = worker->open(photo) && worker->thumbnail(side);
    }
    awaitBookingOfWorkers();
    return isDone ? 0 : 1;
}
