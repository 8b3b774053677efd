#pragma once

#include "ConversionEngine.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>

class ScratchFile;

/// The engine that has photos decoded and encoded by image workers and does everything about files and names
/// itself.
///
/// The worker writes into a file without a name on the source's file system. Decoding and writing thus go
/// hand in hand, tile by tile, and still no folder is made and nothing appears before the whole photo has
/// proved readable.
class WorkerConversionEngine : public QObject, public ConversionEngine
{
    Q_OBJECT

public:
    explicit WorkerConversionEngine(std::shared_ptr<ImageWorkerLauncher> launcher);
    /// Ends a running conversion, which leaves nothing behind, and drops those that wait.
    ~WorkerConversionEngine() override;

    void convert(const QUrl &sourceURL, const ConversionSettings &settings, QObject *receiver,
                 std::function<void(const ConversionOutcome &)> done) override;
    void prepare() override;

private:
    ConversionOutcome convertNow(const QUrl &sourceURL, const ConversionSettings &settings);
    tl::expected<ScratchFile, ConversionFailure> render(const QUrl &sourceURL,
                                                        const ConversionSettings &settings);

    std::shared_ptr<ImageWorkerLauncher> m_launcher;
    std::atomic<int> m_waiting = 0; ///< accepted conversions that have not started
    QThreadPool m_executor;         ///< of one thread, so that conversions never overlap
};
