#include "system/x11keypresses.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <xcb/xcb.h>
#include <xcb/xinput.h>

namespace {

/// What xcb hands out is freed as C does.
struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};
template<class Reply> using Owned = std::unique_ptr<Reply, Free>;

/// Virtual-key code of an X11 button; 0 for the wheel and whatever else is no button to press.
constexpr std::size_t buttonCode(quint32 button)
{
    switch (button) {
    case 1: // left
        return 1;
    case 2: // middle
        return 4;
    case 3: // right
        return 2;
    case 8: // back
        return 5;
    case 9: // forward
        return 6;
    default:
        return 0;
    }
}

/// X11's key codes start at 8, above the buttons' virtual-key codes, so they serve as they are.
std::size_t keyCode(quint32 key)
{
    constexpr std::size_t last = KeyPresses().size() - 1;
    return std::min<std::size_t>(key, last);
}

} // namespace

void X11KeyPresses::Disconnect::operator()(xcb_connection_t *opened) const
{
    xcb_disconnect(opened);
}

X11KeyPresses::X11KeyPresses()
    : connection(xcb_connect(nullptr, nullptr))
{
    if (!listen()) {
        connection.reset();
        return;
    }
    arrivals = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection.get()),
                                                 QSocketNotifier::Read);
    QObject::connect(arrivals.get(), &QSocketNotifier::activated, [this] { drain(); });
}

X11KeyPresses::~X11KeyPresses() = default;

bool X11KeyPresses::listen()
{
    // None at all where the connection has failed.
    const auto *const extension = xcb_get_extension_data(connection.get(), &xcb_input_id);
    if (extension == nullptr || extension->present == 0) {
        return false;
    }
    const Owned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection.get(), xcb_input_xi_query_version(connection.get(), 2, 2), nullptr));
    // Before 2.1, raw events stay away while another program holds a grab. Who does not know of
    // version 2 does not know the question either.
    if (!version) {
        return false;
    }

    const struct
    {
        xcb_input_event_mask_t head;
        quint32 bits;
    } mask = {{XCB_INPUT_DEVICE_ALL_MASTER, 1},
              XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS};
    const auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    xcb_input_xi_select_events(connection.get(), screens.data->root, 1, &mask.head);
    xcb_flush(connection.get()); // whether it has got there, the first poll tells
    return true;
}

KeyPresses X11KeyPresses::takePresses()
{
    drain();
    return std::exchange(presses, KeyPresses());
}

void X11KeyPresses::drain()
{
    if (!connection) {
        return;
    }
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection.get())}) {
        // Of generic events only the two that were asked for come; they are laid out alike.
        const auto *const raw = reinterpret_cast<xcb_input_raw_key_press_event_t *>(event.get());
        if ((raw->response_type & 0x7F) != XCB_GE_GENERIC) {
            continue;
        }
        if (raw->event_type == XCB_INPUT_RAW_KEY_PRESS) {
            presses.set(keyCode(raw->detail));
        } else if (const std::size_t code = buttonCode(raw->detail); code != 0) {
            presses.set(code);
        }
    }
    if (xcb_connection_has_error(connection.get()) != 0) {
        arrivals->setEnabled(false); // not deleted: it may be the caller
        connection.reset();          // the display is gone
    }
}
