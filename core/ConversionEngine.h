#pragma once

#include "ConversionError.h"
#include "ConversionSettings.h"

#include <QUrl>

#include <functional>
#include <memory>
#include <tl/expected.hpp>

class ImageWorkerLauncher;
class QObject;

/// One successful conversion.
struct ConversionResult
{
    QUrl sourceURL; ///< exactly as handed to the engine, also when the source was moved to `Originals`
    QUrl outputURL; ///< the converted file
};

using ConversionOutcome = tl::expected<ConversionResult, ConversionFailure>;

/// Turns one HEIC or HEIF file into one PNG or JPEG file. Keeps nothing between conversions and runs one at a
/// time, in the order of the calls, on a thread of its own.
class ConversionEngine
{
public:
    virtual ~ConversionEngine() = default;

    /// Queues the photo and returns at once. `done` is called on the main thread when the photo is converted
    /// or has failed; not at all when `receiver` or the engine is gone by then.
    virtual void convert(const QUrl &sourceURL, const ConversionSettings &settings, QObject *receiver,
                         std::function<void(const ConversionOutcome &)> done) = 0;

    /// A photo is about to be converted: starts what takes time and needs no photo. Returns at once.
    virtual void prepare() = 0;

    /// The engine that hands photos to image workers.
    static std::unique_ptr<ConversionEngine> create(std::shared_ptr<ImageWorkerLauncher> launcher);
};
