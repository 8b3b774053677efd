#pragma once

#include "ImageWorkerLimits.h"

#include <QString>

#include <memory>

class ImageWorker;

/// Starts image workers. May be called on any thread.
class ImageWorkerLauncher
{
public:
    virtual ~ImageWorkerLauncher() = default;

    /// A worker for one photo; the prepared one, if there is one. Never null: when none could be started, the
    /// first call to it says so.
    virtual std::unique_ptr<ImageWorker> launch() = 0;
    /// Requests a worker ahead of need, unless one is requested already. Returns at once.
    virtual void prepare() = 0;
    /// Stops every worker where it is, also those launched later, until resume(). Their time goes on.
    virtual void pause() = 0;
    virtual void resume() = 0;
    /// Kills every worker at once, also while a thread waits for it. Workers launched later fail.
    virtual void endAll() = 0;

    /// Uses the worker program that lies beside the application.
    static std::shared_ptr<ImageWorkerLauncher> create();
    /// Uses `program`. Its processes end with the launcher.
    static std::shared_ptr<ImageWorkerLauncher> create(const QString &program, ImageWorkerLimits limits);
};
