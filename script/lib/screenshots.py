"""Brings the window into every state, as a screen reader or the pointer would, and keeps a picture
of each: screenshots.py EXECUTABLE FOLDER RIGHTS [DPI...]

RIGHTS are those it runs with, "user" or "administrator"; they decide about some of the questions.
"""

import contextlib
import http.server
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import threading
import time
import typing

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/support"))
from screenreader import (COMBO_BOX, LABEL, PAGE_TAB, Program, accessibility_bus,  # noqa: E402
                          wait_for)

BUTTON, CHECK = "push button", "check box"
ON = "backlight_on=true\nbrightlevel=100\n"
ZONES = ON + "Zone1Color=255 85 0\nZone2Color=155 0 255\nZone3Color=0 255 255\nStripeLid=0 255 0\n"
SINGLE = ON + "Zone4Color=0 120 255\nsinglecolorselectedlast=true\n"
# Inside the square, so that all of its marker is seen.
PICKED = ZONES.replace("Zone1Color=255 85 0", "Zone1Color=200 90 40")
STRIPE = ZONES + "P751LEDStripe=true\n"
INSTALLED = re.search(r"project\(Lumikey VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1]
NEWER = INSTALLED + ".1"
SETTLED_AFTER_SECONDS = 1.5  # settings are applied a second after the start
PAINTED_AFTER_SECONDS = 0.5
OUT_OF_THE_WAY = ("0", "0")


class State(typing.NamedTuple):
    name: str  # of the picture
    settings: typing.Optional[str]  # None before the first start
    mark: str  # a text of the window, or a message box's title, by which the state is known
    reach: typing.Callable = lambda program: None
    latest: typing.Optional[str] = None  # version that the update server names; None without one
    box: bool = False
    rights: str = "user"


def tab(name):
    return lambda program: program.find(PAGE_TAB, name).press()


def picker(program):
    program.find(BUTTON, "Left zone color").press()
    program.find(LABEL, "Select Left Keyboard Zone Color:")


def click(role, name):
    """By the pointer: whoever presses by way of the accessibility bus waits until a list or a
    question is closed again."""
    def reach(program):
        x, y, width, height = program.find(role, name).place
        subprocess.run(["xdotool", "mousemove", str(x + width // 2), str(y + height // 2),
                        "click", "1", "mousemove", *OUT_OF_THE_WAY], check=True)
    return reach


def check_for_update(program):
    tab("About")(program)
    click(BUTTON, "Check for Update")(program)


def languages(code, zones, picked):
    """The zones and the picker in another language, known by a label of each."""
    speaks = PICKED + f"language={code}\n"

    def open_picker(program):
        program.find(LABEL, zones)
        click(BUTTON, OPENERS[code])(program)

    return [State(f"zones-{code}", speaks, zones),
            State(f"picker-{code}", speaks, picked, open_picker)]


OPENERS = {"de": "Farbe der linken Zone", "ru": "Цвет левой зоны", "ja": "左ゾーンの色"}

STATES = [
    State("single", SINGLE, "Single Color Selection"),
    State("zones", ZONES, "Left"),
    State("stripe", STRIPE, "Touchpad Stripe LED color", tab("Stripe")),
    State("effect", ZONES + "effects=7\n", "Brightness Level: 100% (disabled for Effects)"),
    State("off", None, "Backlight Status"),
    State("picker", PICKED, "Selected Color:", picker),
    State("perkey", ZONES + "PerKey=true\n", "Per Key RGB Keyboard App"),
    State("about", ZONES, "Software Version", tab("About")),
    State("list", ZONES, "Effects:", click(COMBO_BOX, "None")),
    State("box-uninstall", ZONES, "Monitor", click(BUTTON, "Uninstall"), box=True),
    State("box-perkey", ZONES, "Per Key Install", click(CHECK, "User Per-Key RGB CLEVO App"),
          box=True),
    State("box-notice", ZONES, "Update Information", check_for_update, INSTALLED, box=True),
    State("box-rights", ZONES, "Update Information", latest=NEWER, box=True),
    State("box-update", ZONES, "Update Information", latest=NEWER, box=True,
          rights="administrator"),
    *languages("de", "Links", "Gewählte Farbe:"),
    *languages("ru", "Слева", "Выбранный цвет:"),
    *languages("ja", "左", "選択した色:"),
]


@contextlib.contextmanager
def program_folder(executable, latest):
    """A folder whose branding names an update server of ours, which names that version; the
    program's own without a version."""
    if latest is None:
        yield None
        return

    class Answer(http.server.BaseHTTPRequestHandler):
        def do_GET(self):
            self.send_response(200)
            self.send_header("Content-Length", str(len(latest)))
            self.end_headers()
            self.wfile.write(latest.encode())

        def log_message(self, *_):
            pass

    with http.server.ThreadingHTTPServer(("127.0.0.1", 0), Answer) as server, \
            tempfile.TemporaryDirectory() as folder:
        threading.Thread(target=server.serve_forever, daemon=True).start()
        branding = shutil.copytree(pathlib.Path(executable).parent / "branding",
                                   pathlib.Path(folder) / "branding")
        with open(branding / "lumikey_branding.ini", "a", encoding="ascii") as ini:
            ini.write(f"updateserver=http://127.0.0.1:{server.server_port}\n")
        yield folder
        server.shutdown()


def visible_window(title):
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"],
                           capture_output=True, text=True, check=False).stdout.split()
    return found[0] if len(found) == 1 else None


def take_picture(window, file):
    """Of the screen where the window is: with the lists and boxes over it."""
    shell = subprocess.run(["xdotool", "getwindowgeometry", "--shell", window],
                           capture_output=True, text=True, check=True).stdout
    place = dict(line.split("=") for line in shell.split())
    crop = "{WIDTH}x{HEIGHT}+{X}+{Y}".format(**place)
    subprocess.run(["import", "-window", "root", "-crop", crop, "+repage", "-depth", "8", "-define",
                    "png:compression-level=9", "+set", "date:create", "+set", "date:modify",
                    "-strip", file], check=True)


def take(executable, folder, dpi, state):
    file = folder / f"{state.name}-{dpi}.png"
    with program_folder(executable, state.latest) as beside, \
            Program(executable, state.settings, dpi, beside) as program:
        time.sleep(SETTLED_AFTER_SECONDS)
        state.reach(program)
        if state.box:
            wait_for(lambda: visible_window(state.mark), f"the box {state.mark}")
        else:
            program.find(LABEL, state.mark)
        window = wait_for(lambda: visible_window("Lumikey"), "the window on the display")
        time.sleep(PAINTED_AFTER_SECONDS)
        take_picture(window, file)
    print(file)


def main():
    executable, folder, rights = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3]
    dpis = [int(dpi) for dpi in sys.argv[4:]] or [96, 192]
    subprocess.run(["xdotool", "mousemove", *OUT_OF_THE_WAY], check=True)
    with accessibility_bus():
        for dpi in dpis:
            for state in STATES:
                if state.rights == rights:
                    take(executable, folder, dpi, state)


main()
