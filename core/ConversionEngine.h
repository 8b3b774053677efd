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

    /// Takes the photo and returns at once. `done` is called on the thread that the engine lives in, the main
    /// one, when the photo's turn is over; not at all when `receiver` or the engine is gone by then.
    virtual void convert(const QUrl &sourceURL, const ConversionSettings &settings, QObject *receiver,
                         std::function<void(const ConversionOutcome &)> done) = 0;

    /// A photo is about to be converted: whatever takes time and needs no photo may start now. Returns at
    /// once.
    virtual void prepare() = 0;

    /// The engine that hands photos to image workers.
    static std::unique_ptr<ConversionEngine> create(std::shared_ptr<ImageWorkerLauncher> launcher);
};
