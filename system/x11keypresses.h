#pragma once

#include "system/keypresses.h"

#include <QtGlobal>

#include <memory>

class QSocketNotifier;
struct xcb_connection_t;

/// Key and button presses in all windows of an X11 display, through the raw events of XInput 2. It
/// has a connection of its own, so that it works whatever Qt talks to.
class X11KeyPresses
{
public:
    /// Connects to the display that DISPLAY names. Without one, or without XInput 2.0, nothing is
    /// ever pressed.
    X11KeyPresses();
    ~X11KeyPresses();
    Q_DISABLE_COPY(X11KeyPresses)

    /// The codes pressed since the last call.
    KeyPresses takePresses();

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t *opened) const;
    };

    /// Asks for the raw events; false when the display does not have them.
    bool listen();
    /// Reads what has arrived.
    void drain();

    KeyPresses presses; ///< since the last call of takePresses()
    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    /// Reads events as they come, so that they do not pile up in the display server while nobody
    /// polls.
    std::unique_ptr<QSocketNotifier> arrivals;
};
