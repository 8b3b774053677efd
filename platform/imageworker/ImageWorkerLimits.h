#pragma once

#include <chrono>

/// How long an image worker may take before it is ended.
struct ImageWorkerLimits
{
    std::chrono::milliseconds start{15'000};
    std::chrono::milliseconds open{15'000};
    std::chrono::milliseconds write{20'000};
    std::chrono::milliseconds perMegapixel{500}; ///< on top of write
};
