#pragma once

#include <cstdint>

/// The encoding of the converted file.
enum class OutputFormat : std::uint32_t { png, jpeg };
