#pragma once

#include "Source.h"

namespace imageworker {

/// A box in memory, with the position of its payload in the file.
struct LoadedBox
{
    Bytes payload;
    std::uint64_t position = 0;
};

/// The boxes of a file that describe it. All other boxes are media data, which are read by position.
struct TopLevelBoxes
{
    LoadedBox meta; ///< empty payload when there is none
    LoadedBox movie;
};

/// Unreadable when a box reaches past the end of the file: it is truncated.
Result<TopLevelBoxes> readTopLevelBoxes(const Source &source);

} // namespace imageworker
