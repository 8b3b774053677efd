#pragma once

class QWindow;

/// The desktop's list of open windows.
namespace TaskBar {

/// Keeps a window that has a native window and is hidden out of the task bar and the pager when it is shown
/// next; window managers forget this when they hide it. Does nothing where there is no X server.
void leaveOut(const QWindow &window);

} // namespace TaskBar
