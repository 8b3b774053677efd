#pragma once

#include <map>
#include <mutex>
#include <utility>

namespace imageworker {

/// Puts pieces that several threads make at once back into their order.
template<typename Piece>
class ReorderBuffer
{
public:
    /// Passes @p piece to @p write once all pieces with lower numbers, from 0, have been; one at a time.
    template<typename Write>
    void add(int number, Piece piece, const Write &write)
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.emplace(number, std::move(piece));
        for (auto next = m_waiting.find(m_next); next != m_waiting.end(); next = m_waiting.find(m_next)) {
            write(next->second);
            m_waiting.erase(next);
            ++m_next;
        }
    }

private:
    std::mutex m_mutex;
    std::map<int, Piece> m_waiting;
    int m_next = 0;
};

} // namespace imageworker
