#include "PointerPresses.h"

#include "X11.h"

#include <QGuiApplication>

#include <xcb/xinput.h>

namespace {

/// Of the X Input Extension; 0 without an X server that has it.
std::uint8_t majorOpcode()
{
    xcb_connection_t *connection = X11::connection();
    const auto *extension = connection ? xcb_get_extension_data(connection, &xcb_input_id) : nullptr;
    return extension && extension->present ? extension->major_opcode : 0;
}

// Raw events need no window under the pointer and no grab: X Input Extension 2.2, "RawEvent".
void select(std::uint32_t events)
{
    if (majorOpcode() == 0) {
        return; // a request for a missing extension closes the connection
    }
    xcb_connection_t *connection = X11::connection();
    const struct
    {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } selection{.head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1}, .mask = events};
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection)); screen.rem > 0;
         xcb_screen_next(&screen)) {
        xcb_input_xi_select_events(connection, screen.data->root, 1, &selection.head);
    }
    xcb_flush(connection);
}

} // namespace

PointerPresses::PointerPresses()
{
    qGuiApp->installNativeEventFilter(this);
    select(XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS);
}

PointerPresses::~PointerPresses()
{
    select(0);
}

bool PointerPresses::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/)
{
    const auto *event = static_cast<const xcb_ge_generic_event_t *>(message);
    if (eventType == "xcb_generic_event_t" && (event->response_type & 0x7F) == XCB_GE_GENERIC &&
        event->event_type == XCB_INPUT_RAW_BUTTON_PRESS && event->extension == majorOpcode()) {
        Q_EMIT pressed();
    }
    return false;
}
