#pragma once

#include "ImageWorkerLimits.h"

#include <QString>

#include <memory>

class ImageWorker;

/// Starts image workers.
class ImageWorkerLauncher
{
public:
    virtual ~ImageWorkerLauncher() = default;

    /// A worker for one photo; the one that stands ready, if there is one. Never null: when none could be
    /// started, the first call to it says so. May be called on any thread.
    virtual std::unique_ptr<ImageWorker> launch() = 0;
    /// Starts a worker ahead of need, if none stands ready. Returns at once.
    virtual void prepare() = 0;
    /// Ends every worker at once, whoever waits for one; from any thread. Workers launched later fail.
    virtual void endAll() = 0;

    /// Starts the worker program that lies beside the application.
    static std::shared_ptr<ImageWorkerLauncher> create();
    /// Starts `program`. Its processes end with the launcher, however that ends: they are started by one
    /// thread of its own, because the kernel ends them when the thread that started them is gone.
    static std::shared_ptr<ImageWorkerLauncher> create(const QString &program, ImageWorkerLimits limits);
};
