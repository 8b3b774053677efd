#pragma once

namespace imageworker {

/// Forks a worker for each SpawnRequest on @p socket, until the application closes its end. A worker has all
/// libraries loaded from the start; it is locked down, tells the application so, runs @p work with its own
/// socket, and exits. To be called while this process has one thread.
void runForkServer(int socket, void (*work)(int socket));

} // namespace imageworker
