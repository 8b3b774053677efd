#pragma once

namespace imageworker {

enum class Rights { GivenUp, Kept };

/// Says on @p socket whether the rights have been given up; if so, answers the application's requests until
/// it closes its end.
void converse(int socket, Rights rights);

} // namespace imageworker
