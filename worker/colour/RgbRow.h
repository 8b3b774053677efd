#pragma once

#include <cstdint>
#include <vector>

namespace imageworker {

/// One row of non-linear red, green and blue codes; YcbcrToRgb::maximumCode() is the highest.
struct RgbRow
{
    explicit RgbRow(int width)
        : red(static_cast<std::size_t>(width))
        , green(red.size())
        , blue(red.size())
    {}
    int width() const { return static_cast<int>(red.size()); }

    std::vector<std::uint16_t> red;
    std::vector<std::uint16_t> green;
    std::vector<std::uint16_t> blue;
};

} // namespace imageworker
