#pragma once

#include <QByteArray>

#include <xcb/xcb.h>

/// The X server, as far as Qt gives no way to it. Needs a QGuiApplication.
namespace X11 {

/// Null on other platforms.
xcb_connection_t *connection();

/// `XCB_NONE` when the server does not answer.
xcb_atom_t atom(xcb_connection_t *connection, const QByteArray &name);

} // namespace X11
