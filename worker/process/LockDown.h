#pragma once

namespace imageworker {

/// Gives up every right of this process that converting one photo does not need: limits on memory, time, file
/// size and descriptors; no new privileges; no file by name (Landlock, where the kernel has it); and a filter
/// of system calls. To be called with all libraries loaded and before the first byte of a photo is read.
/// False when any of it failed, except for a kernel without Landlock.
bool lockDown();

} // namespace imageworker
