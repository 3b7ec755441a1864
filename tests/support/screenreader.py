"""Lumikey as a screen reader meets it: a process of its own, seen through AT-SPI only.

Wants a display, a session bus of its own with at-spi-bus-launcher, and Debian's own Python.
"""

import contextlib
import os
import pathlib
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
COMBO_BOX, LABEL, PAGE_TAB = "combo box", "label", "page tab"


@contextlib.contextmanager
def accessibility_bus():
    """The bus on which programs offer themselves, on a session bus of its own."""
    launcher = subprocess.Popen([BUS_LAUNCHER, "--launch-immediately"],
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        wait_for(lambda: subprocess.run(
            ["dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
             "org.a11y.Bus.GetAddress"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            check=False).returncode == 0, "the accessibility bus")
        yield
    finally:
        launcher.terminate()
        launcher.wait()


def wait_for(look, what, seconds=15):
    """What look() returns, once that is true."""
    end = time.monotonic() + seconds
    while True:
        try:
            found = look()
        except gi.repository.GLib.Error:  # what was just there has gone
            found = None
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.05)


class Control:
    """One accessible object."""

    def __init__(self, node):
        self.node = node

    role = property(lambda self: self.node.get_role_name())
    name = property(lambda self: self.node.get_name())
    description = property(lambda self: self.node.get_description())
    value = property(lambda self: Atspi.Value.get_current_value(self.node))
    text = property(lambda self: Atspi.Text.get_text(self.node, 0, -1))

    @property
    def label(self):
        """The name of the label beside it; None without one."""
        for relation in self.node.get_relation_set():
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
                return relation.get_target(0).get_name()
        return None

    def has(self, state):
        return self.node.get_state_set().contains(getattr(Atspi.StateType, state))

    @property
    def showing(self):
        return self.has("SHOWING")

    @property
    def place(self):
        """x, y, width and height on the screen."""
        box = Atspi.Component.get_extents(self.node, Atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    @property
    def actions(self):
        if self.node.get_action_iface() is None:
            return []
        count = Atspi.Action.get_n_actions(self.node)
        return [Atspi.Action.get_action_name(self.node, i) for i in range(count)]

    def act(self, name):
        if not Atspi.Action.do_action(self.node, self.actions.index(name)):
            raise AssertionError(f"{self} refused to {name}")

    def press(self):
        self.act(next(name for name in ("Press", "Toggle", "SetFocus") if name in self.actions))

    def set_value(self, value):
        if not Atspi.Value.set_current_value(self.node, value):
            raise AssertionError(f"{self} does not take {value}")

    def set_text(self, text):
        if not Atspi.EditableText.set_text_contents(self.node, text):
            raise AssertionError(f"{self} does not take {text!r}")

    def children(self):
        for i in range(self.node.get_child_count()):
            child = self.node.get_child_at_index(i)
            if child is not None:
                yield Control(child)

    def descendants(self):
        for child in self.children():
            yield child
            yield from child.descendants()

    def __repr__(self):
        return f"{self.role} {self.name!r}"


class Announcements:
    """What programs tell by themselves of their controls, as (name, what): "accessible-value" and
    "accessible-description"."""

    KINDS = ("accessible-value", "accessible-description")

    def __init__(self):
        self.heard = []
        self._listener = Atspi.EventListener.new(self._hear)
        for kind in self.KINDS:
            self._listener.register(f"object:property-change:{kind}")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for kind in self.KINDS:
            self._listener.deregister(f"object:property-change:{kind}")

    def _hear(self, event):
        self.heard.append((event.source.get_name(), event.type.rsplit(":", 1)[1]))

    def come(self, *wanted):
        """Whether all of them have been told since the last forget()."""
        while GLib.MainContext.default().iteration(False):
            pass
        return set(wanted) <= set(self.heard)

    def forget(self):
        self.come()  # also what is still under way
        self.heard.clear()


class Program:
    """A running Lumikey in a home of its own; settings is what an earlier run has left, None before
    the first one; folder is where it looks for its branding, beside the executable by default."""

    def __init__(self, executable, settings="", dpi=96, folder=None):
        self._home = tempfile.TemporaryDirectory()
        self.home = pathlib.Path(self._home.name)
        self.settings_file = self.home / "Documents/Corvane/Lumikey/lumikey.ini"
        if settings is not None:
            self.settings_file.parent.mkdir(parents=True)
            self.settings_file.write_text("[settings]\n" + settings)
        executable = pathlib.Path(executable).resolve()
        environment = dict(os.environ, HOME=str(self.home), QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                           QT_FONT_DPI=str(dpi))
        self.process = subprocess.Popen([executable], cwd=folder or executable.parent, env=environment,
                                        stdout=subprocess.DEVNULL)
        self._window = None

    @property
    def window(self):
        if self._window is None:
            self._window = wait_for(self.find_window, "the window")
        return self._window

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.end()

    def end(self):
        self.process.kill()
        self.process.wait()
        self._home.cleanup()

    def find_window(self):
        """The window, when it shows."""
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            if application is not None and application.get_process_id() == self.process.pid:
                for window in Control(application).children():
                    if window.name == "Lumikey" and window.showing:
                        return window
        return None

    def stored(self, key):
        """A key's stored text; None when it is missing."""
        for line in self.settings_file.read_text().splitlines():
            if line.startswith(key + "="):
                return line.split("=", 1)[1]
        return None

    def controls(self, role=None):
        """Everything that shows, but what lists hold."""
        def walk(node):
            for child in node.children():
                if child.showing:
                    yield child
                    if child.role != COMBO_BOX:
                        yield from walk(child)
        self.window.node.clear_cache()
        return [control for control in walk(self.window) if role in (None, control.role)]

    def find(self, role, name):
        """The one such control that shows."""
        def look():
            return [control for control in self.controls(role) if control.name == name]
        found = wait_for(look, f"{role} {name!r}")
        if len(found) != 1:
            raise AssertionError(f"{len(found)} of {role} {name!r}")
        return found[0]
