#pragma once

#include "Photo.h"

#include <cstdint>

namespace imageworker {

/// Bytes of memory that suffice to convert @p photo, whose file has @p fileLength bytes: generous for any
/// photo, and small beside the machine's memory for one of a phone.
std::uint64_t memoryNeeded(const Photo &photo, std::uint64_t fileLength);

} // namespace imageworker
