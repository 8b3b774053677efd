#pragma once

#include <chrono>
#include <cstdint>

/// What an image worker accepts and answers, and how long it may take before it is killed.
struct ImageWorkerLimits
{
    /// Of one picture. Twice what the largest phone sensors write.
    static constexpr std::int32_t maximumPixels = 300'000'000;

    std::chrono::milliseconds start{15'000};
    std::chrono::milliseconds open{15'000};
    std::chrono::milliseconds write{20'000};
    std::chrono::milliseconds perMegapixel{500}; ///< on top of write
};
