#pragma once

namespace imageworker {

/// Raises a worker for each one asked for on @p socket, until the application closes its end. A worker is a
/// copy of this process, so that it has its libraries loaded at birth; it runs @p work with the socket handed
/// over for it, and ends. To be called while this process has one thread, and before it has read a byte of
/// any photo.
void raiseWorkers(int socket, void (*work)(int socket));

} // namespace imageworker
