#pragma once

#include <cstdint>
#include <tl/expected.hpp>
#include <vector>

namespace imageworker {

/// Why a photo did not become a copy.
enum class Fault {
    Unreadable,  ///< damaged, incomplete, or of a kind that is not understood
    CannotWrite, ///< the photo was sound, but the output could not take the bytes
};

template<typename Value>
using Result = tl::expected<Value, Fault>;

inline tl::unexpected<Fault> unreadable()
{
    return tl::unexpected(Fault::Unreadable);
}

using Bytes = std::vector<std::uint8_t>;

/// Width and height in pixels.
struct PixelSize
{
    int width = 0;
    int height = 0;

    bool operator==(const PixelSize &) const = default;
};

/// Larger pictures are refused. Twice what the largest phone sensors write.
inline constexpr std::int64_t MaximumPixels = 300'000'000;
inline constexpr std::int64_t MaximumSide = 65'535; ///< what a JPEG can hold

inline bool isAcceptable(std::int64_t width, std::int64_t height)
{
    return width > 0 && height > 0 && width <= MaximumSide && height <= MaximumSide &&
           width * height <= MaximumPixels;
}

} // namespace imageworker
