#pragma once

#include <memory>

class ImageWorker;

/// Starts image workers.
class ImageWorkerLauncher
{
public:
    virtual ~ImageWorkerLauncher() = default;

    /// A worker for one photo; the one that stands ready, if there is one.
    virtual std::unique_ptr<ImageWorker> launch() = 0;
    /// Starts a worker ahead of need. Returns at once.
    virtual void prepare() = 0;
    /// Ends every worker at once, whoever waits for one; from any thread. Workers launched later fail.
    virtual void endAll() = 0;

    /// Starts the worker program that lies beside the application.
    static std::shared_ptr<ImageWorkerLauncher> create();
};
