#include "ConversionActivity.h"

#include <condition_variable>
#include <mutex>

namespace {

std::mutex turn; // of the callers of awaitNone()
std::mutex mutex;
std::condition_variable changed;
int count = 0; // guarded by mutex

void add(int difference)
{
    const std::lock_guard lock(mutex);
    count += difference;
    changed.notify_all();
}

} // namespace

ConversionActivity::ConversionActivity()
{
    add(1);
}

ConversionActivity::~ConversionActivity()
{
    add(-1);
}

void ConversionActivity::awaitNone(std::chrono::milliseconds limit)
{
    const std::lock_guard waiting(turn);
    std::unique_lock lock(mutex);
    changed.wait_for(lock, limit, [] { return count == 0; });
}
