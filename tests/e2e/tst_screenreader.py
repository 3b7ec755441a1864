"""Drives the whole program from outside, as a screen reader would: through AT-SPI only."""

import pathlib
import socket
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "support"))
from screenreader import Announcements, COMBO_BOX, LABEL, PAGE_TAB, Program, accessibility_bus, wait_for  # noqa: E402

EXECUTABLE = sys.argv.pop(1)
SETTINGS = ("backlight_on=true\nbrightlevel=100\nP751LEDStripe=true\nZone1Color=255 0 0\n"
            "Zone2Color=0 255 0\nZone3Color=0 0 255\nStripeLid=128 0 0\n")
OFF = "3758108672,3758108672,3758108672,3758108672,0"
CENTRE_WORD = str(0xF10000FF)  # of the settings above

RADIO, BUTTON, CHECK, SLIDER = "radio button", "push button", "check box", "slider"
IMAGE, TEXT, CHOOSER = "image", "text", "color chooser"

# What is reached on the three zones' page with the settings below it. A list is named by what it
# shows, and by the label beside it.
MAIN_PAGE = {
    (BUTTON, "Minimize"), (BUTTON, "Close"), (RADIO, "Enabled"), (RADIO, "Disabled"),
    (SLIDER, "Brightness"), (IMAGE, "Left zone preview"), (IMAGE, "Center zone preview"),
    (IMAGE, "Right zone preview"), (BUTTON, "Left zone color"), (BUTTON, "Center zone color"),
    (BUTTON, "Right zone color"), (PAGE_TAB, "Single Zone Fixed"), (PAGE_TAB, "3 Zones Fixed"),
    (PAGE_TAB, "Stripe"), (PAGE_TAB, "Settings"), (PAGE_TAB, "About"), (COMBO_BOX, "None"),
    (CHECK, "Auto turn off:"), (COMBO_BOX, "5 seconds"), (CHECK, "Start with Windows"),
    (CHECK, "Close button hides instead of closing"), (CHECK, "Start hidden in system tray"),
    (CHECK, "Mouse keys will also wake auto dim"), (CHECK, "User Per-Key RGB CLEVO App"),
    (CHECK, "Enable P75x Stripe LED Control"), (BUTTON, "Uninstall"),
}
PICKER = {
    (CHOOSER, "Saturation and value"), (SLIDER, "Hue"), (BUTTON, "Selected color"),
    (TEXT, "RGB color"), (TEXT, "HEX color"), (COMBO_BOX, "Red"), (BUTTON, "Copy Color"),
    (BUTTON, "Paste Color"), (BUTTON, "Cancel"), (BUTTON, "Apply Value"),
}
OPERABLE = (BUTTON, RADIO, CHECK, SLIDER, TEXT, CHOOSER, COMBO_BOX, PAGE_TAB)


def answer():
    """The command line that an agent receives."""
    try:
        client = socket.create_connection(("127.0.0.9", 52316), timeout=5)
    except ConnectionRefusedError:  # it is not up yet
        return ",,"
    with client:
        received = b""
        while piece := client.recv(4096):
            received += piece
    return received[6:].decode("utf-16-be")


class ScreenReader(unittest.TestCase):
    def setUp(self):
        self.program = Program(EXECUTABLE, SETTINGS)
        self.addCleanup(self.program.end)
        # The settings are applied a second after the start, and two answers wake the keyboard.
        wait_for(lambda: answer().split(",")[1] == CENTRE_WORD, "the settings to be applied")

    def find(self, role, name):
        return self.program.find(role, name)

    def wait_for_stored(self, key, value):
        wait_for(lambda: self.program.stored(key) == value, f"{key}={value} in the settings")

    def test_every_control_has_a_role_and_a_name(self):
        self.find(LABEL, "Left")
        controls = {(control.role, control.name) for control in self.program.controls()}
        self.assertEqual(MAIN_PAGE - controls, set())
        self.find(BUTTON, "Left zone color").press()
        self.find(LABEL, "Select Left Keyboard Zone Color:")
        controls = {(control.role, control.name) for control in self.program.controls()}
        self.assertEqual(PICKER - controls, set())
        for role, name in controls:
            if role in OPERABLE:
                self.assertNotEqual(name.strip(), "", role)

    def test_lists_have_labels(self):
        self.assertEqual(self.find(COMBO_BOX, "None").label, "Effects:")
        self.find(BUTTON, "Left zone color").press()
        self.assertEqual(self.find(COMBO_BOX, "Red").label, "Quick Basic Colors:")

    def test_backlight_off_and_on(self):
        self.find(RADIO, "Disabled").press()
        self.wait_for_stored("backlight_off", "true")
        self.assertEqual(answer(), OFF)
        self.assertFalse(self.find(SLIDER, "Brightness").has("ENABLED"))
        self.assertTrue(self.find(RADIO, "Disabled").has("CHECKED"))
        self.find(RADIO, "Enabled").press()
        self.wait_for_stored("backlight_off", "false")
        self.assertTrue(self.find(SLIDER, "Brightness").has("ENABLED"))

    def test_brightness(self):
        slider = self.find(SLIDER, "Brightness")
        self.assertEqual(slider.value, 100)
        slider.set_value(40)
        self.wait_for_stored("brightlevel", "40")
        self.find(LABEL, "Brightness Level: 40%")
        self.assertEqual(slider.value, 40)

    def test_a_colour_is_applied(self):
        self.find(BUTTON, "Center zone color").press()
        self.find(LABEL, "Select Center Keyboard Zone Color:")
        hue = self.find(SLIDER, "Hue")
        square = self.find(CHOOSER, "Saturation and value")
        self.assertEqual(hue.value, 120)
        self.assertEqual(square.description, "Saturation 255, value 255")
        hue.set_value(240)
        wait_for(lambda: self.find(BUTTON, "Selected color").description == "#0000ff", "blue")
        self.find(TEXT, "RGB color").set_text("10 20 30")
        self.assertEqual(self.find(TEXT, "RGB color").text, "10 20 30")
        self.find(BUTTON, "Apply Value").press()
        self.wait_for_stored("Zone2Color", "10 20 30")
        # Zone 0xF1, blue 30, red 10, green 20.
        self.assertEqual(answer().split(",")[1], str(0xF11E0A14))

    def test_changes_of_the_colour_are_announced(self):
        strip = ("Hue", "accessible-value")
        square = ("Saturation and value", "accessible-description")
        sample = ("Selected color", "accessible-description")
        self.find(BUTTON, "Left zone color").press()
        hue = self.find(SLIDER, "Hue")
        with Announcements() as announcements:
            # Until the program knows that somebody listens.
            wait_for(lambda: hue.set_value(60) or announcements.come(strip), "a first word")
            announcements.forget()
            hue.set_value(240)
            wait_for(lambda: announcements.come(strip, square, sample), "a hue by hand")
            self.find(BUTTON, "Cancel").press()
            announcements.forget()
            self.find(BUTTON, "Left zone color").press()
            wait_for(lambda: announcements.come(strip, square, sample), "a colour that is loaded")
            self.find(BUTTON, "Cancel").press()
            self.find(PAGE_TAB, "Stripe").press()
            announcements.forget()
            self.find(BUTTON, "Stripe color").press()  # of the same hue
            wait_for(lambda: announcements.come(square, sample), "a darker colour")

    def test_the_sample_copies_and_cancel_closes(self):
        self.find(BUTTON, "Left zone color").press()
        self.find(BUTTON, "Selected color").press()
        self.find(BUTTON, "Copy Color").press()
        wait_for(lambda: self.find(BUTTON, "Paste Color").has("ENABLED"), "a paste button")
        self.find(BUTTON, "Cancel").press()
        self.find(BUTTON, "Left zone color")
        self.assertEqual(self.program.stored("Zone1Color"), "255 0 0")

    def test_tabs_and_check_boxes(self):
        self.find(PAGE_TAB, "Stripe").press()
        self.find(BUTTON, "Stripe color")
        self.find(CHECK, "Close button hides instead of closing").press()
        self.wait_for_stored("minimize_close", "true")
        self.find(PAGE_TAB, "About").press()
        self.find(BUTTON, "Check for Update")
        self.find(BUTTON, "Close").press()
        wait_for(lambda: not self.program.window.showing, "the window to hide")
        self.assertIsNone(self.program.process.poll())


class Sizes(unittest.TestCase):
    # DPI: the window's least size, then the title buttons' and the left picture's.
    EXPECTED = {
        96: (600, 630, 25, (145, 95)), 97: (620, 680, 30, (145, 95)), 120: (620, 680, 30, (145, 95)),
        121: (720, 780, 34, (165, 115)), 144: (720, 780, 34, (165, 115)),
        168: (800, 890, 38, (175, 125)), 192: (900, 960, 42, (195, 145)),
        216: (920, 1010, 48, (205, 155)), 240: (980, 1050, 48, (225, 155)),
        241: (630, 630, 25, (145, 95)), 264: (630, 630, 25, (145, 95)),
        287: (630, 630, 25, (145, 95)), 288: (1200, 1250, 52, (245, 165)),
        335: (1200, 1250, 52, (245, 165)), 336: (1200, 1250, 56, (245, 165)),
    }

    def test_sizes_follow_the_dpi(self):
        for dpi, (width, height, title, picture) in self.EXPECTED.items():
            with self.subTest(dpi=dpi), Program(EXECUTABLE, SETTINGS, dpi) as program:
                self.assertEqual(program.find(BUTTON, "Close").place[2:], (title, title))
                program.find(LABEL, "Left")
                self.assertEqual(program.find(IMAGE, "Left zone preview").place[2:], picture)
                shown = program.window.place[2:]
                self.assertGreaterEqual(shown[0], width)
                self.assertGreaterEqual(shown[1], height)


if __name__ == "__main__":
    with accessibility_bus():
        unittest.main(verbosity=2, warnings="ignore")
