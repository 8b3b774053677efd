#include "ConversionActivity.h"

#include "ImageWorkerLauncher.h"

#include <condition_variable>
#include <mutex>
#include <vector>

namespace {

std::mutex turn; // of the callers of awaitNone()
std::mutex mutex;
std::condition_variable changed;
int count = 0;                                             // guarded by mutex
std::vector<std::weak_ptr<ImageWorkerLauncher>> launchers; // likewise

void callEach(void (ImageWorkerLauncher::*operation)())
{
    for (const auto &each : launchers) {
        if (const auto launcher = each.lock()) {
            (launcher.get()->*operation)();
        }
    }
}

} // namespace

ConversionActivity::ConversionActivity()
{
    const std::lock_guard lock(mutex);
    if (count++ == 0) {
        callEach(&ImageWorkerLauncher::pause);
    }
}

ConversionActivity::~ConversionActivity()
{
    const std::lock_guard lock(mutex);
    --count;
    callEach(&ImageWorkerLauncher::resume);
    changed.notify_all();
}

void ConversionActivity::awaitNone(std::chrono::milliseconds limit)
{
    const std::lock_guard waiting(turn);
    std::unique_lock lock(mutex);
    changed.wait_for(lock, limit, [] { return count == 0; });
}

void ConversionActivity::addPreviews(const std::shared_ptr<ImageWorkerLauncher> &launcher)
{
    const std::lock_guard lock(mutex);
    std::erase_if(launchers, [](const auto &each) { return each.expired(); });
    launchers.push_back(launcher);
}
