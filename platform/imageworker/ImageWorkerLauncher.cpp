#include "ImageWorkerLauncher.h"

#include "ImageWorkerProcess.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <mutex>

namespace {

/// Uses one fork server, and starts another should that have exited. No process outlives the application,
/// however that ends: the fork server exits when its socket is closed, and its workers are killed with it.
class ProcessLauncher : public ImageWorkerLauncher
{
public:
    ProcessLauncher(QString program, ImageWorkerLimits limits)
        : m_program(std::move(program))
        , m_limits(limits)
    {}

    std::unique_ptr<ImageWorker> launch() override
    {
        // A fork server that is killed may take one request while it exits, and another before its socket is
        // closed. Then another one is started.
        constexpr int Attempts = 3;
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            FileDescriptor socket = takeRequestedWorker();
            if (!socket.isOpen()) {
                break;
            }
            if (!ImageWorkerChild::awaitMessage(socket, m_limits.start)) {
                killForkServer(); // it hangs
                break;
            }
            auto worker = ImageWorkerChild::receiveWorker(std::move(socket));
            if (worker && worker->isRunning()) {
                return std::make_unique<ImageWorkerProcess>(std::move(worker), m_limits);
            }
        }
        return std::make_unique<ImageWorkerProcess>(nullptr, m_limits);
    }

    void prepare() override
    {
        const std::lock_guard lock(m_mutex);
        requestWorker();
    }

    void endAll() override
    {
        m_hasEnded = true;
        killForkServer();
    }

private:
    FileDescriptor takeRequestedWorker()
    {
        const std::lock_guard lock(m_mutex);
        requestWorker();
        return std::move(m_requested);
    }

    /// Unless one is requested already.
    void requestWorker()
    {
        if (m_requested.isOpen() || m_hasEnded) {
            return;
        }
        if (m_forkServer) {
            m_requested = m_forkServer->requestWorker();
        }
        if (!m_requested.isOpen()) {
            m_forkServer = ImageWorkerChild::startForkServer(m_program);
            m_requested = m_forkServer ? m_forkServer->requestWorker() : FileDescriptor();
        }
    }

    void killForkServer()
    {
        const std::lock_guard lock(m_mutex);
        m_forkServer.reset();
        m_requested.reset();
    }

    const QString m_program;
    const ImageWorkerLimits m_limits;
    std::atomic<bool> m_hasEnded = false;
    std::mutex m_mutex; ///< guards the following
    std::unique_ptr<ImageWorkerChild> m_forkServer;
    FileDescriptor m_requested; ///< this end of the socket of a worker that nobody has taken yet
};

/// Beside the application as it is built; in the folder for helpers once installed.
QString workerProgram()
{
    const QString name = QStringLiteral("lumaport-imageworker");
    const QDir folder(QCoreApplication::applicationDirPath());
    const QStringList places = {folder.filePath(name),
                                folder.filePath(QStringLiteral("../libexec/lumaport/") + name),
                                folder.filePath(QStringLiteral("../") + name)};
    const auto found = std::find_if(places.begin(), places.end(),
                                    [](const QString &path) { return QFileInfo::exists(path); });
    return found == places.end() ? places.front() : *found;
}

} // namespace

std::shared_ptr<ImageWorkerLauncher> ImageWorkerLauncher::create()
{
    return create(workerProgram(), {});
}

std::shared_ptr<ImageWorkerLauncher> ImageWorkerLauncher::create(const QString &program,
                                                                 ImageWorkerLimits limits)
{
    return std::make_shared<ProcessLauncher>(program, limits);
}
