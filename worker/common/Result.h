#pragma once

#include "ImageWorkerFault.h"
#include "ImageWorkerLimits.h"

#include <cstdint>
#include <memory>
#include <tl/expected.hpp>
#include <vector>

namespace imageworker {

template<typename Value>
using Result = tl::expected<Value, ImageWorkerFault>;

inline tl::unexpected<ImageWorkerFault> unreadable()
{
    return tl::unexpected(ImageWorkerFault::Unreadable);
}

using Bytes = std::vector<std::uint8_t>;

/// Bytes that several owners hold and none changes; never null where a function gives or takes them.
using SharedBytes = std::shared_ptr<const Bytes>;

/// Width and height in pixels.
struct PixelSize
{
    int width = 0;
    int height = 0;

    bool operator==(const PixelSize &) const = default;
};

inline constexpr std::int64_t MaximumSide = 65'535; ///< what a JPEG can hold

inline bool isAcceptable(std::int64_t width, std::int64_t height)
{
    return width > 0 && height > 0 && width <= MaximumSide && height <= MaximumSide &&
           width * height <= ImageWorkerLimits::maximumPixels;
}

} // namespace imageworker
