#pragma once

#include <cstdint>

/// Why an image worker did not do what it was asked for.
enum class ImageWorkerFault : std::uint32_t {
    Unreadable = 1, ///< the photo is damaged, incomplete, or of a kind that is not understood
    CannotWrite,    ///< the photo is sound, but the output file takes no more bytes
    NotLockedDown,  ///< no worker could be started and locked down; none was given the photo
};
