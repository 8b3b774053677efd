#pragma once

#include <chrono>

/// The date of now; for stamps, never for measuring time.
class WallClock
{
public:
    virtual ~WallClock() = default;
    virtual std::chrono::system_clock::time_point now() const { return std::chrono::system_clock::now(); }
};
