#include "X11.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>

xcb_connection_t *X11::connection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_atom_t X11::atom(xcb_connection_t *connection, const QByteArray &name)
{
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : XCB_NONE;
}
