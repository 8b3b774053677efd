#include "WindowBlending.h"

#include "X11.h"

#include <cstdlib>
#include <memory>

namespace {

// A compositor announces itself by owning this selection of its screen: Extended Window Manager Hints 1.5,
// "Compositing Managers".
QByteArray selectionName()
{
    char *host = nullptr; // not wanted, but asked for by the call
    int display = 0;
    int screen = 0;
    xcb_parse_display(nullptr, &host, &display, &screen);
    std::free(host);
    return "_NET_WM_CM_S" + QByteArray::number(screen);
}

bool isOwned(xcb_connection_t *connection, const QByteArray &selection)
{
    const auto cookie = xcb_get_selection_owner(connection, X11::atom(connection, selection));
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr), &std::free);
    return reply && reply->owner != XCB_NONE;
}

} // namespace

bool WindowBlending::isAvailable()
{
    xcb_connection_t *connection = X11::connection();
    return connection != nullptr && isOwned(connection, selectionName());
}
