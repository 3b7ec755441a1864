#include "system/testing/displayscale.h"

#include <QByteArray>
#include <QDataStream>

#include <cstdlib>

#include <xcb/xcb.h>

namespace {

/// The form of the XSETTINGS specification, with the one setting.
QByteArray settings(quint32 serial, int dpi)
{
    const QByteArray name = "Xft/DPI";
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const quint32 count = 1;
    out << quint8{0} << quint8{0} << quint16{0} << serial << count;     // little endian
    out << quint8{0} << quint8{0} << static_cast<quint16>(name.size()); // a number follows the name
    out.writeRawData(name.constData(), name.size());
    out << quint8{0}; // to a multiple of four
    out << serial << static_cast<qint32>(dpi * 1024);
    return bytes;
}

} // namespace

struct DisplayScale::Private
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    xcb_window_t window = 0;
    quint32 serial = 0;

    xcb_atom_t atom(const char *name) const
    {
        const auto cookie =
            xcb_intern_atom(connection, 0, static_cast<uint16_t>(qstrlen(name)), name);
        auto *const reply = xcb_intern_atom_reply(connection, cookie, nullptr);
        const xcb_atom_t found = reply == nullptr ? 0 : reply->atom; // 0 is none
        std::free(reply);
        return found;
    }

    void publish(int dpi)
    {
        const QByteArray bytes = settings(++serial, dpi);
        const xcb_atom_t property = atom("_XSETTINGS_SETTINGS");
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, property, 8,
                            static_cast<uint32_t>(bytes.size()), bytes.constData());
        xcb_flush(connection);
    }
};

DisplayScale::DisplayScale(int dpi)
    : d(std::make_unique<Private>())
{
    if (xcb_connection_has_error(d->connection) != 0) {
        qFatal("there is no X display");
    }
    const auto *const screen = xcb_setup_roots_iterator(xcb_get_setup(d->connection)).data;
    d->window = xcb_generate_id(d->connection);
    xcb_create_window(d->connection, XCB_COPY_FROM_PARENT, d->window, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    d->publish(dpi);
    xcb_set_selection_owner(d->connection, d->window, d->atom("_XSETTINGS_S0"), XCB_CURRENT_TIME);
    xcb_flush(d->connection);
}

DisplayScale::~DisplayScale()
{
    xcb_disconnect(d->connection);
}

void DisplayScale::change(int dpi)
{
    d->publish(dpi);
}
