#pragma once

namespace imageworker {

enum class Rights { GivenUp, Kept };

/// Answers the application's requests on @p socket until it closes its end. Without the rights given up
/// nothing is read, and every answer says so.
void converse(int socket, Rights rights);

} // namespace imageworker
