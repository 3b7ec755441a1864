"""Works the program's tray icon from outside, as a desktop's panel does."""

import pathlib
import shutil
import socket
import subprocess
import sys
import tempfile
import time
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "support"))
from screenreader import Program, accessibility_bus, wait_for  # noqa: E402
from traydesktop import TrayDesktop  # noqa: E402

EXECUTABLE = sys.argv.pop(1)
SETTLED_AFTER_SECONDS = 1.5


class DisplayWatch:
    """Notes what happens to the windows on the display; in its events, once it is over."""

    def __enter__(self):
        self._xev = subprocess.Popen(["xev", "-root", "-event", "substructure"],
                                     stdout=subprocess.PIPE, text=True)
        return self

    def __exit__(self, *_):
        self._xev.terminate()
        self.events = self._xev.communicate()[0]


class Tray(unittest.TestCase):
    def setUp(self):
        self.desktop.item = None

    def start(self, settings=""):
        program = Program(EXECUTABLE, settings)
        self.addCleanup(program.end)
        self.desktop.wait_for_icon()
        time.sleep(SETTLED_AFTER_SECONDS)
        return program

    def check_ended(self, program):
        self.assertEqual(program.process.wait(timeout=10), 0)
        self.assertIsNotNone(program.stored("mainWindowGeometry"))
        self.assertIsNotNone(program.stored("mainWindowState"))

    def test_menu(self):
        self.start()
        self.assertEqual(list(self.desktop.menu()), ["Show Interface", "Exit"])

    def test_exit(self):
        program = self.start()
        wait_for(program.find_window, "the window")
        self.desktop.choose("Exit")
        self.check_ended(program)

    def test_exit_after_a_hidden_start(self):
        program = self.start("start_hidden=true\n")
        self.assertIsNone(program.find_window())
        self.assertIsNone(program.stored("mainWindowGeometry"))
        self.desktop.choose("Exit")
        self.check_ended(program)

    def test_show_interface_after_a_hidden_start(self):
        program = self.start("start_hidden=true\nPerKey=true\n")
        self.assertIsNone(program.find_window())
        self.desktop.choose("Show Interface")
        wait_for(program.find_window, "the window")
        self.assertIsNone(program.process.poll())

    def test_a_single_click_does_nothing(self):
        program = self.start("start_hidden=true\n")
        self.desktop.click()
        time.sleep(1)
        self.assertIsNone(program.find_window())
        self.assertIsNone(program.process.poll())

    def vendors_program(self):
        """The path of a copy with an empty branding folder beside it."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        vendors = pathlib.Path(folder.name) / "Lumikey"
        shutil.copy(EXECUTABLE, vendors)
        (vendors.parent / "branding").mkdir()
        return vendors

    def test_a_vendors_picture(self):
        vendors = self.vendors_program()
        subprocess.run(["convert", "-size", "64x64", "xc:#c81e78",
                        vendors.parent / "branding/lumikey_system_tray.png"], check=True)
        program = Program(vendors)
        self.addCleanup(program.end)
        self.desktop.wait_for_icon()
        self.assertEqual(self.desktop.icon_colours(), {(0xff, 0xc8, 0x1e, 0x78)})

    def start_while_the_version_is_asked_for(self, settings=""):
        """The program, which waits for its update server, and that server's end of the wait."""
        server = socket.create_server(("127.0.0.1", 0))
        self.addCleanup(server.close)
        vendors = self.vendors_program()
        (vendors.parent / "branding/lumikey_branding.ini").write_text(
            f"[settings]\nupdateserver=http://127.0.0.1:{server.getsockname()[1]}\n")
        program = Program(vendors, settings)
        self.addCleanup(program.end)
        server.settimeout(10)
        question = server.accept()[0]
        self.addCleanup(question.close)
        self.desktop.wait_for_icon()
        return program, question

    def answer(self, question):
        question.recv(4096)
        question.sendall(b"HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n1.0.4")

    def test_exit_while_the_version_is_asked_for_shows_nothing(self):
        for settings in ("", "start_hidden=true\n"):
            with DisplayWatch() as watch:
                program, _question = self.start_while_the_version_is_asked_for(settings)
                self.desktop.choose("Exit")
                self.check_ended(program)
            self.assertIn("CreateNotify", watch.events) # it has looked
            self.assertNotIn("MapNotify", watch.events)
            self.desktop.item = None

    def test_the_watch_sees_a_window(self):
        with DisplayWatch() as watch:
            wait_for(self.start().find_window, "the window")
        self.assertIn("MapNotify", watch.events)

    def test_show_interface_while_the_version_is_asked_for_counts(self):
        program, question = self.start_while_the_version_is_asked_for("start_hidden=true\n")
        self.desktop.choose("Show Interface")
        wait_for(program.find_window, "the window")
        self.answer(question)
        time.sleep(SETTLED_AFTER_SECONDS)
        self.assertIsNotNone(program.find_window())


if __name__ == "__main__":
    Tray.desktop = TrayDesktop()
    with accessibility_bus():
        unittest.main(verbosity=2, warnings="ignore")
