#pragma once

#include "ConversionEngine.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>

class ScratchFile;

/// The engine whose photos are decoded and encoded by image workers. Files and names are its own work.
///
/// The worker writes to a file without a name on the source's file system. So tiles are written as they are
/// decoded, and still no folder is created and no file appears before the whole photo has proved readable.
class WorkerConversionEngine : public QObject, public ConversionEngine
{
    Q_OBJECT

public:
    explicit WorkerConversionEngine(std::shared_ptr<ImageWorkerLauncher> launcher);
    /// Cancels the running conversion, which leaves nothing behind, and drops those that wait.
    ~WorkerConversionEngine() override;

    void convert(const QUrl &sourceURL, const ConversionSettings &settings, QObject *receiver,
                 std::function<void(const ConversionOutcome &)> done) override;
    void prepare() override;

private:
    ConversionOutcome convertNow(const QUrl &sourceURL, const ConversionSettings &settings);
    tl::expected<ScratchFile, ConversionFailure> render(const QUrl &sourceURL,
                                                        const ConversionSettings &settings);

    std::shared_ptr<ImageWorkerLauncher> m_launcher;
    std::atomic<int> m_waiting = 0; ///< conversions that have not started
    QThreadPool m_executor;         ///< of one thread, so that conversions never overlap
};
