#pragma once

#include <chrono>

/// A moment as seconds, with fraction, since 2001-01-01 00:00:00 UTC. Kept as the number that is stored: a
/// type of millisecond resolution would change it.
struct ReferenceDate
{
    double seconds = 0;

    bool operator==(const ReferenceDate &) const = default;

    static ReferenceDate fromSystemTime(std::chrono::system_clock::time_point time)
    {
        using namespace std::chrono;
        return {duration<double>(time - sys_days{year{2001} / January / 1}).count()};
    }
};
