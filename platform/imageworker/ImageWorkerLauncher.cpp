#include "ImageWorkerLauncher.h"

#include "ImageWorkerProcess.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using Child = std::shared_ptr<ImageWorkerChild>;

/// A worker that was asked for when all had been ended.
class EndedWorker : public ImageWorker
{
public:
    tl::expected<ImageSize, ImageWorkerFault> open(const FileDescriptor & /*source*/) override
    {
        return tl::unexpected(ImageWorkerFault::Unreadable);
    }
    tl::expected<void, ImageWorkerFault> write(const FileDescriptor & /*output*/, ImageFormat /*format*/,
                                               double /*jpegQuality*/) override
    {
        return tl::unexpected(ImageWorkerFault::Unreadable);
    }
    tl::expected<QByteArray, ImageWorkerFault> thumbnail(int /*maximumSide*/) override
    {
        return tl::unexpected(ImageWorkerFault::Unreadable);
    }
};

class ProcessLauncher : public ImageWorkerLauncher
{
public:
    ProcessLauncher(const QString &path, ImageWorkerLimits limits)
        : m_path(path)
        , m_limits(limits)
        , m_thread([this] { startOnDemand(); })
    {}

    ~ProcessLauncher() override
    {
        endAll();
        {
            const std::lock_guard lock(m_mutex);
            m_closing = true;
        }
        m_wake.notify_one();
        m_thread.join();
    }
    ProcessLauncher(const ProcessLauncher &) = delete;
    ProcessLauncher &operator=(const ProcessLauncher &) = delete;

    std::unique_ptr<ImageWorker> launch() override
    {
        std::future<Child> child;
        {
            const std::lock_guard lock(m_mutex);
            if (m_spare && m_spare->isRunning()) {
                return std::make_unique<ImageWorkerProcess>(std::exchange(m_spare, nullptr), m_limits);
            }
            child = m_asked.emplace_back().get_future();
        }
        m_wake.notify_one();
        Child worker = child.get();
        const std::lock_guard lock(m_mutex);
        if (m_hasEnded) {
            return std::make_unique<EndedWorker>();
        }
        return std::make_unique<ImageWorkerProcess>(std::move(worker), m_limits);
    }

    void prepare() override
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isSpareWanted = !m_spare || !m_spare->isRunning();
        }
        m_wake.notify_one();
    }

    void endAll() override
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        m_spare.reset();
        if (m_program) {
            m_program->kill();
        }
        for (const auto &started : m_started) {
            if (const Child child = started.lock()) {
                child->kill();
            }
        }
    }

private:
    void startOnDemand()
    {
        std::unique_lock lock(m_mutex);
        while (true) {
            m_wake.wait(lock, [this] { return m_closing || m_isSpareWanted || !m_asked.empty(); });
            if (m_closing) {
                return;
            }
            lock.unlock();
            Child worker = raiseWorker();
            lock.lock();
            handOut(std::move(worker));
        }
    }

    /// By the running program; by a new one should that have gone. Null when there is none to be had.
    Child raiseWorker()
    {
        if (m_program && m_program->isRunning()) {
            if (Child worker = m_program->raiseWorker(m_limits.start)) {
                return worker;
            }
        }
        return startProgram() ? m_program->raiseWorker(m_limits.start) : nullptr;
    }

    bool startProgram()
    {
        Child program = ImageWorkerChild::start(m_path);
        const std::lock_guard lock(m_mutex);
        if (m_hasEnded) {
            return false;
        }
        m_program = std::move(program);
        return m_program != nullptr;
    }

    void handOut(Child child)
    {
        if (m_hasEnded && child) {
            child->kill();
        }
        std::erase_if(m_started, [](const auto &started) { return started.expired(); });
        m_started.push_back(child);
        if (!m_asked.empty()) {
            m_asked.front().set_value(std::move(child));
            m_asked.pop_front();
        } else {
            m_spare = m_hasEnded ? nullptr : std::move(child);
            m_isSpareWanted = false;
        }
    }

    const QString m_path;
    const ImageWorkerLimits m_limits;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::promise<Child>> m_asked; ///< by launch(), which waits for them
    std::vector<std::weak_ptr<ImageWorkerChild>> m_started;
    Child m_program; ///< set by the thread, which alone asks it for workers
    Child m_spare;
    bool m_isSpareWanted = false;
    bool m_hasEnded = false; ///< all of them, on request
    bool m_closing = false;
    std::thread m_thread; ///< last: it uses all of the above
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
