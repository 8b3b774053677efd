#pragma once

#include <cstddef>
#include <cstdint>

namespace imageworker {

/// Row filters of pixels of four bytes (W3C PNG, 9.2); each writes the filter's number and then @p length
/// bytes.
void filterSub(const std::uint8_t *row, std::size_t length, std::uint8_t *filtered);
void filterPaeth(const std::uint8_t *row, const std::uint8_t *above, std::size_t length,
                 std::uint8_t *filtered);

} // namespace imageworker
