#pragma once

#include <cstdint>

namespace imageworker {

/// Gives up every right of this process that converting one photo does not need: limits on memory, time, file
/// size, descriptors and threads; no new privileges; no file by name (Landlock, where the kernel has it); and
/// a filter of system calls. To be called with all libraries loaded and before the first byte of a photo is
/// read. False when any of it failed, except for a kernel without Landlock.
bool lockDown();

/// Sets how many bytes of memory this process may have besides its libraries, for good. Before this call it
/// has what the structure of any photo needs. May be called once, in a process that is locked down.
void limitMemory(std::uint64_t bytes);

} // namespace imageworker
