#pragma once

#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace imageworker {

/// Objects that are expensive to make, kept for use by any thread.
template<typename Object>
class ObjectPool
{
public:
    /// One that is not in use, else a new one from @p make.
    template<typename Make>
    std::unique_ptr<Object> acquire(const Make &make)
    {
        const std::lock_guard lock(m_mutex);
        if (m_objects.empty()) {
            return make();
        }
        auto object = std::move(m_objects.back());
        m_objects.pop_back();
        return object;
    }

    void release(std::unique_ptr<Object> object)
    {
        const std::lock_guard lock(m_mutex);
        m_objects.push_back(std::move(object));
    }

private:
    std::mutex m_mutex;
    std::vector<std::unique_ptr<Object>> m_objects;
};

} // namespace imageworker
