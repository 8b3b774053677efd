#pragma once

#include <chrono>
#include <memory>

class ImageWorkerLauncher;

/// A conversion that waits or is under way in this process. Previews wait while there is one, so that it has
/// the processors to itself. Those under way when the first of a row begins are paused until that one ends.
/// May be used on any thread.
class ConversionActivity
{
public:
    ConversionActivity();
    ~ConversionActivity();
    ConversionActivity(const ConversionActivity &) = delete;
    ConversionActivity &operator=(const ConversionActivity &) = delete;

    /// Returns when there is none, or after `limit`. Callers wait one after another, so that during a long
    /// row of conversions no more than one of them returns in each `limit`.
    static void awaitNone(std::chrono::milliseconds limit);

    /// The workers of `launcher` make previews.
    static void addPreviews(const std::shared_ptr<ImageWorkerLauncher> &launcher);
};
