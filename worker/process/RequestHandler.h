#pragma once

namespace imageworker {

/// Answers the application's requests about one photo on @p socket, until the application closes its end.
void handleRequests(int socket);

} // namespace imageworker
