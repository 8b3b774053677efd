#include "WindowBlending.h"

#include <QByteArray>
#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace {

template<typename Reply>
using ReplyPointer = std::unique_ptr<Reply, decltype(&std::free)>;

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
    const ReplyPointer<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(connection,
                              xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(selection.size()),
                                              selection.constData()),
                              nullptr),
        &std::free);
    if (!atom) {
        return false;
    }
    const ReplyPointer<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr),
        &std::free);
    return owner && owner->owner != XCB_NONE;
}

} // namespace

bool WindowBlending::isAvailable()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 && x11->connection() && isOwned(x11->connection(), selectionName());
}
