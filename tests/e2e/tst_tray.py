"""Works the program's tray icon from outside, as a desktop's panel does."""

import pathlib
import shutil
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

    def test_a_vendors_picture(self):
        with tempfile.TemporaryDirectory() as folder:
            vendors = pathlib.Path(folder) / "Lumikey"
            shutil.copy(EXECUTABLE, vendors)
            (vendors.parent / "branding").mkdir()
            subprocess.run(["convert", "-size", "64x64", "xc:#c81e78",
                            vendors.parent / "branding/lumikey_system_tray.png"], check=True)
            program = Program(vendors)
            self.addCleanup(program.end)
            self.desktop.wait_for_icon()
            self.assertEqual(self.desktop.icon_colours(), {(0xff, 0xc8, 0x1e, 0x78)})


if __name__ == "__main__":
    Tray.desktop = TrayDesktop()
    with accessibility_bus():
        unittest.main(verbosity=2, warnings="ignore")
