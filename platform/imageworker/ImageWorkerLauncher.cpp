#include "ImageWorkerLauncher.h"

#include "ImageWorkerProcess.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <csignal>
#include <mutex>
#include <vector>

namespace {

/// Uses one fork server, and starts another should that have exited, or not answer in time: that one then
/// keeps the workers that it has, and is killed after the last of them. No process outlives the application,
/// however that ends: the fork server exits when its socket is closed, and its workers are killed with it.
class ProcessLauncher : public ImageWorkerLauncher
{
public:
    ProcessLauncher(QString program, ImageWorkerLimits limits)
        : m_program(std::move(program))
        , m_limits(limits)
    {}

    ~ProcessLauncher() override { killForkServers(); }

    std::unique_ptr<ImageWorker> launch() override
    {
        // A fork server that is killed may take one request while it exits, and another before its socket is
        // closed. Then another one is started.
        constexpr int Attempts = 3;
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            RequestedWorker requested = takeRequestedWorker();
            if (!requested.socket.isOpen()) {
                break;
            }
            auto worker = ImageWorkerChild::receiveWorker(std::move(requested.socket), m_limits.start);
            if (worker && (*worker)->isRunning()) {
                addRunning(*worker);
                return std::make_unique<ImageWorkerProcess>(std::move(requested.forkServer),
                                                            std::move(*worker), m_limits);
            }
            if (!worker && worker.error() == ImageWorkerChild::StartFailure::TimedOut) {
                replace(requested.forkServer);
            }
        }
        return std::make_unique<ImageWorkerProcess>(nullptr, nullptr, m_limits);
    }

    void prepare() override
    {
        const std::lock_guard lock(m_mutex);
        requestWorker();
    }

    void pause() override { setPaused(true); }
    void resume() override { setPaused(false); }

    void endAll() override { killForkServers(); }

private:
    void killForkServers()
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        for (const auto &each : m_replaced) {
            if (const auto forkServer = each.lock()) {
                forkServer->kill(); // and the kernel its workers
            }
        }
        if (m_forkServer) {
            m_forkServer->kill();
        }
        m_forkServer.reset();
        m_requested = {};
    }

    void setPaused(bool isPaused)
    {
        const std::lock_guard lock(m_mutex);
        if (m_isPaused == isPaused) {
            return;
        }
        m_isPaused = isPaused;
        for (const auto &each : m_running) {
            if (const auto worker = each.lock()) {
                worker->signal(isPaused ? SIGSTOP : SIGCONT);
            }
        }
    }

    void addRunning(const std::shared_ptr<ImageWorkerChild> &worker)
    {
        const std::lock_guard lock(m_mutex);
        std::erase_if(m_running, [](const auto &each) { return each.expired(); });
        m_running.push_back(worker);
        if (m_isPaused) {
            worker->signal(SIGSTOP);
        }
    }

    struct RequestedWorker
    {
        std::shared_ptr<ImageWorkerChild> forkServer;
        FileDescriptor socket; ///< this end of the worker's
    };

    RequestedWorker takeRequestedWorker()
    {
        const std::lock_guard lock(m_mutex);
        requestWorker();
        return std::exchange(m_requested, {});
    }

    /// Unless one is requested already.
    void requestWorker()
    {
        if (m_requested.socket.isOpen() || m_hasEnded) {
            return;
        }
        m_requested = requestFrom(m_forkServer);
        if (!m_requested.socket.isOpen()) {
            m_forkServer = ImageWorkerChild::startForkServer(m_program);
            m_requested = requestFrom(m_forkServer);
        }
    }

    static RequestedWorker requestFrom(const std::shared_ptr<ImageWorkerChild> &forkServer)
    {
        return forkServer ? RequestedWorker{forkServer, forkServer->requestWorker()} : RequestedWorker();
    }

    /// `forkServer` does not answer. A stalled machine is no reason to end its workers.
    void replace(const std::shared_ptr<ImageWorkerChild> &forkServer)
    {
        const std::lock_guard lock(m_mutex);
        std::erase_if(m_replaced, [](const auto &each) { return each.expired(); });
        if (m_forkServer == forkServer) {
            m_replaced.push_back(m_forkServer);
            m_forkServer.reset();
            m_requested = {};
        }
    }

    const QString m_program;
    const ImageWorkerLimits m_limits;
    std::mutex m_mutex; ///< guards the following
    bool m_hasEnded = false;
    std::shared_ptr<ImageWorkerChild> m_forkServer;
    std::vector<std::weak_ptr<ImageWorkerChild>> m_replaced; ///< fork servers that did not answer
    bool m_isPaused = false;
    std::vector<std::weak_ptr<ImageWorkerChild>> m_running; ///< workers, not fork servers
    RequestedWorker m_requested;                            ///< one that nobody has taken yet
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
