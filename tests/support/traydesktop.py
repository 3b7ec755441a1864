"""The part of a desktop that shows tray icons, as far as a test needs it: it lets one program's icon
register, and works its menu."""

import threading

from gi.repository import Gio, GLib

from screenreader import wait_for

WATCHER = "org.kde.StatusNotifierWatcher"
WATCHER_XML = f"""
<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierHostRegistered"/>
</interface></node>
"""
PROPERTIES = {
    "RegisteredStatusNotifierItems": GLib.Variant("as", []),
    "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
    "ProtocolVersion": GLib.Variant("i", 0),
}
MENU = "com.canonical.dbusmenu"
TIMEOUT_MS = 10000


class TrayDesktop:
    def __init__(self):
        self.item = None
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(WATCHER_XML).interfaces[0]
        self._bus.register_object("/StatusNotifierWatcher", interface, self._called,
                                  lambda *call: PROPERTIES[call[4]], None)
        owned = threading.Event()
        Gio.bus_own_name_on_connection(self._bus, WATCHER, Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: owned.set(), None)
        threading.Thread(target=GLib.MainLoop().run, daemon=True).start()
        if not owned.wait(TIMEOUT_MS / 1000):
            raise AssertionError("the tray's name is not free")

    def _called(self, _connection, sender, _path, _interface, method, parameters, invocation):
        if method == "RegisterStatusNotifierItem":
            service = parameters.unpack()[0]
            self.item = sender if service.startswith("/") else service
        invocation.return_value(None)

    def _call(self, path, interface, method, parameters):
        return self._bus.call_sync(self.item, path, interface, method, parameters, None,
                                   Gio.DBusCallFlags.NONE, TIMEOUT_MS, None).unpack()

    def wait_for_icon(self):
        wait_for(lambda: self.item, "a tray icon")

    def _property(self, name):
        return self._call("/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                          GLib.Variant("(ss)", ("org.kde.StatusNotifierItem", name)))[0]

    def icon_colours(self):
        """Every colour of the icon: alpha, red, green and blue."""
        return {tuple(pixels[i:i + 4]) for _width, _height, pixels in self._property("IconPixmap")
                for i in range(0, len(pixels), 4)}

    def menu(self):
        """The entries' identifiers by their texts, in order."""
        path = self._property("Menu")
        self._menu_path = path
        layout = self._call(path, MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))[1]
        return {entry[1]["label"]: entry[0] for entry in layout[2]}

    def choose(self, text):
        identifier = self.menu()[text]
        self._call(self._menu_path, MENU, "Event",
                   GLib.Variant("(isvu)", (identifier, "clicked", GLib.Variant("i", 0), 0)))

    def click(self):
        """A single click with the left button."""
        self._call("/StatusNotifierItem", "org.kde.StatusNotifierItem", "Activate",
                   GLib.Variant("(ii)", (0, 0)))
