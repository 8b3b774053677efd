#pragma once

namespace imageworker {

/// Gives up, for this process and for good, every right that turning one photo into one copy does not need:
/// limits on memory, time, file size and descriptors; no new privileges; no file by name (Landlock, where the
/// kernel has it); and of the system's calls only those that calculating, reading and writing open files
/// need. To be called with all libraries loaded and before the first byte is read. False when any of it
/// failed but for a kernel without Landlock.
bool lockDown();

/// Ends this process together with the thread that started it; false when that has gone already. @p parent is
/// its process.
bool tieToParent(int parent);

} // namespace imageworker
