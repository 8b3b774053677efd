#pragma once

#include "Source.h"

namespace imageworker {

/// A box whose payload is held whole, with the place in the file where that payload starts.
struct LoadedBox
{
    Bytes payload;
    std::uint64_t position = 0;
};

/// The boxes of a file that describe it; the rest is media data, reached by position.
struct TopLevelBoxes
{
    LoadedBox meta; ///< empty payload when there is none
    LoadedBox movie;
};

/// Unreadable when a box reaches past the end of the file, which is how a file that was cut shows.
Result<TopLevelBoxes> readTopLevelBoxes(const Source &source);

} // namespace imageworker
