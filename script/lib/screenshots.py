"""Brings the window into every state as a screen reader would, and keeps a picture of each."""

import pathlib
import subprocess
import sys
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "tests/support"))
from screenreader import LABEL, PAGE_TAB, Program, accessibility_bus, wait_for  # noqa: E402

ON = "backlight_on=true\nbrightlevel=100\n"
ZONES = ON + "Zone1Color=255 85 0\nZone2Color=155 0 255\nZone3Color=0 255 255\nStripeLid=0 255 0\n"
SINGLE = ON + "Zone4Color=0 120 255\nsinglecolorselectedlast=true\n"
# Inside the square, so that all of its marker is seen.
PICKED = ZONES.replace("Zone1Color=255 85 0", "Zone1Color=200 90 40")
STRIPE = ZONES + "P751LEDStripe=true\n"


def nothing(_):
    pass


def tab(name):
    return lambda program: program.find(PAGE_TAB, name).press()


def picker(program):
    program.find("push button", "Left zone color").press()
    program.find(LABEL, "Select Left Keyboard Zone Color:")


# Name of the picture, settings (none before the first start), what is done, a text by which the
# state is known.
STATES = [
    ("single", SINGLE, nothing, "Single Color Selection"),
    ("zones", ZONES, nothing, "Left"),
    ("stripe", STRIPE, tab("Stripe"), "Touchpad Stripe LED color"),
    ("effect", ZONES + "effects=7\n", nothing, "Brightness Level: 100% (disabled for Effects)"),
    ("off", None, nothing, "Backlight Status"),
    ("picker", PICKED, picker, "Selected Color:"),
    ("perkey", ZONES + "PerKey=true\n", nothing, "Per Key RGB Keyboard App"),
    ("about", ZONES, tab("About"), "Software Version"),
]
SETTLED_AFTER_SECONDS = 1.5  # settings are applied a second after the start


def visible_window():
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Lumikey$"],
                           capture_output=True, text=True, check=False).stdout.split()
    return found[0] if len(found) == 1 else None


def take(executable, folder, dpi, state):
    name, settings, reach, mark = state
    file = folder / f"{name}-{dpi}.png"
    with Program(executable, settings, dpi) as program:
        time.sleep(SETTLED_AFTER_SECONDS)
        reach(program)
        program.find(LABEL, mark)
        window = wait_for(visible_window, "the window on the display")
        time.sleep(0.3)  # the last change is painted
        subprocess.run(["import", "-window", window, "-depth", "8", "-define",
                        "png:compression-level=9", "+set", "date:create", "+set", "date:modify",
                        "-strip", file], check=True)
    print(file)


def main():
    executable, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    dpis = [int(dpi) for dpi in sys.argv[3:]] or [96, 192]
    with accessibility_bus():
        for dpi in dpis:
            for state in STATES:
                take(executable, folder, dpi, state)


main()
