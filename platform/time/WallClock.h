#pragma once

#include <chrono>

/// The present date and time; for time stamps, not for measuring how long something takes.
class WallClock
{
public:
    virtual ~WallClock() = default;
    virtual std::chrono::system_clock::time_point now() const { return std::chrono::system_clock::now(); }
};
