#pragma once

#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace imageworker {

/// Things worth keeping for the next use, of which each thread needs one now and then.
template<typename Thing>
class Spares
{
public:
    /// One that nobody uses, else a new one from @p make.
    template<typename Make>
    std::unique_ptr<Thing> take(const Make &make)
    {
        const std::lock_guard lock(m_mutex);
        if (m_things.empty()) {
            return make();
        }
        auto thing = std::move(m_things.back());
        m_things.pop_back();
        return thing;
    }

    void giveBack(std::unique_ptr<Thing> thing)
    {
        const std::lock_guard lock(m_mutex);
        m_things.push_back(std::move(thing));
    }

private:
    std::mutex m_mutex;
    std::vector<std::unique_ptr<Thing>> m_things;
};

} // namespace imageworker
