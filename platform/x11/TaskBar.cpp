#include "TaskBar.h"

#include "X11.h"

#include <QWindow>

#include <array>

// Extended Window Manager Hints 1.5, "_NET_WM_STATE". Qt keeps the states it finds in the property.
void TaskBar::leaveOut(const QWindow &window)
{
    if (xcb_connection_t *connection = X11::connection()) {
        const std::array states{X11::atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                                X11::atom(connection, "_NET_WM_STATE_SKIP_PAGER")};
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                            X11::atom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, states.size(),
                            states.data());
    }
}
