"""The program and its yardsticks as processes, and what the system tells about them."""

import json
import os
import pathlib
import shutil
import socket
import struct
import subprocess
import tempfile
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
BUILD = ROOT / "build/release"
ADDRESS = "127.0.0.9"
PROGRAM_PORT = 52316
ANSWERING = 96  # bytes
LOADS = (1, 2, 4, 8, 16, 32, 64, 128, 256)
SETTLED_AFTER_SECONDS = 3  # settings are applied a second after the start
IDLE_AFTER_SECONDS = 8  # auto-dim begins to watch five seconds later
START_LIMIT_SECONDS = 30
APART_SECONDS = 0.5  # between two starts that go on beside each other

SETTINGS = """[settings]
backlight_on=true
backlight_off=false
brightlevel=100
Zone1Color=255 85 0
Zone2Color=0 255 0
Zone3Color=0 0 255
StripeLid=0 255 0
"""
IN_THE_TRAY = "start_hidden=1\n"
# The longest idle time, so that what is measured is the watching.
WATCHING = IN_THE_TRAY + "AutoDim=true\ndimtimer=8\n"
NEIGHBOUR = BUILD / "ckb-next/usr/bin/ckb-next"  # script/bench unpacks it


def cpu_seconds(pid):
    """CPU time of all threads of a process, those that have ended included."""
    return time.clock_gettime((~pid << 3) | 2)  # the system's own number for that clock


class Process:
    """A started process; the first answer has been served when the context is entered."""

    port = PROGRAM_PORT

    def __init__(self, command, environment=None, cwd=None):
        self._command, self._environment, self._cwd = command, environment, cwd

    def __enter__(self):
        self.process = subprocess.Popen(self._command, env=self._environment, cwd=self._cwd,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            self._wait_for_answer()
        except BaseException:
            self.__exit__()
            raise
        self.cpu_until_answer_ms = cpu_seconds(self.process.pid) * 1000
        self._started = time.monotonic()
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()

    def cpu_seconds(self):
        return cpu_seconds(self.process.pid)

    def _wait_for_answer(self):
        end = time.monotonic() + START_LIMIT_SECONDS
        while time.monotonic() < end:
            if self.process.poll() is not None:
                raise RuntimeError(f"{self._command[0]} ended with {self.process.returncode}")
            try:
                with socket.create_connection((ADDRESS, self.port), timeout=5) as connection:
                    received = 0
                    while piece := connection.recv(4096):
                        received += len(piece)
            except ConnectionRefusedError:
                time.sleep(0.001)
                continue
            if received != ANSWERING:
                raise RuntimeError(f"{self._command[0]} answered {received} bytes")
            return
        raise RuntimeError(f"{self._command[0]} answered nobody")

    def settle(self):
        time.sleep(max(0, self._started + SETTLED_AFTER_SECONDS - time.monotonic()))

    def memory_kib(self):
        """Proportional share of the memory."""
        return self._memory("Pss:")

    def own_memory_kib(self):
        """What no other process shares."""
        return self._memory("Private_")

    def _memory(self, kind):
        text = pathlib.Path(f"/proc/{self.process.pid}/smaps_rollup").read_text()
        return sum(int(line.split()[1]) for line in text.splitlines() if line.startswith(kind))


def come_and_go(server, clients):
    """Connects and closes without waiting for anything; then gives the server its time."""
    for _ in range(clients):
        with socket.socket() as client:
            client.setblocking(False)
            client.connect_ex((ADDRESS, server.port))
    time.sleep(1)


def program_world(folder, more_settings=""):
    """Home, temporary files and working folder of one run; returns environment and folder."""
    home = folder / "home"
    settings = home / "Documents/Corvane/Lumikey/lumikey.ini"
    settings.parent.mkdir(parents=True)
    settings.write_text(SETTINGS + more_settings)
    branding = folder / "branding"
    shutil.copytree(BUILD / "bin/branding", branding)
    with open(branding / "lumikey_branding.ini", "a", encoding="utf-8") as file:
        file.write("\n[settings]\nupdateserver=http://127.0.0.1:1\n")  # refuses at once
    temporary = folder / "tmp"
    temporary.mkdir()
    return dict(os.environ, HOME=str(home), TMPDIR=str(temporary)), folder


class Program(Process):
    """Lumikey, settled after a while, with a folder of its own."""

    def __init__(self):
        self._folder = tempfile.TemporaryDirectory()
        environment, cwd = program_world(pathlib.Path(self._folder.name))
        super().__init__([BUILD / "bin/Lumikey"], environment, cwd)

    def __exit__(self, *_):
        super().__exit__()
        self._remove_shared_memory()
        self._folder.cleanup()

    def _remove_shared_memory(self):
        """A killed copy leaves its block behind; the next start would spend time on it."""
        lines = pathlib.Path("/proc/sysvipc/shm").read_text().splitlines()
        columns = lines[0].split()
        for line in lines[1:]:
            segment = dict(zip(columns, line.split()))
            if int(segment["cpid"]) == self.process.pid:
                subprocess.run(["ipcrm", "-m", segment["shmid"]], check=True)


class Bare(Process):
    """A yardstick: bareprogram (a Qt program) or bareserver (C)."""

    def __init__(self, name="bareprogram", *options):
        self.port = {"bareprogram": PROGRAM_PORT + 1, "bareserver": PROGRAM_PORT + 2}[name]
        super().__init__([BUILD / "bench" / name, ADDRESS, str(self.port), *options])


def neighbour_cpu_ms():
    """CPU time until ckb-next, which sets keyboards too, shows its window; it finds no keyboard."""
    # It refuses to run for root, whom the world that is measured in takes everybody for.
    command = ["unshare", "--user", "--map-user=1000", "--map-group=1000", NEIGHBOUR]
    shown = ["xdotool", "search", "--onlyvisible", "--name", "^ckb-next$"]
    with tempfile.TemporaryDirectory() as folder:
        environment = {name: value for name, value in os.environ.items()
                       if not name.startswith("XDG_") or name == "XDG_RUNTIME_DIR"}
        with subprocess.Popen(command, env=environment | {"HOME": folder, "TMPDIR": folder},
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
            try:
                end = time.monotonic() + START_LIMIT_SECONDS
                while subprocess.run(shown, stdout=subprocess.DEVNULL, check=False).returncode != 0:
                    if time.monotonic() > end:
                        raise RuntimeError("ckb-next showed no window")
                return cpu_seconds(process.pid) * 1000
            finally:
                process.kill()  # a message of its own keeps it from ending


def answers(server, clients, milliseconds):
    """What the load client tells of a server, and the server's CPU time of an answer in µs."""
    command = [BUILD / "bench/loadclient", ADDRESS, str(server.port), str(clients),
               str(milliseconds)]
    before = server.cpu_seconds()
    result = subprocess.run(command, check=True, capture_output=True, text=True)
    told = json.loads(result.stdout)
    told["cpu"] = (server.cpu_seconds() - before) / told["answers"] * 1_000_000
    return told


OFF_LINE = ",".join(["3758108672"] * 4 + ["0"]).encode("utf-16-be")
OFF_ANSWER = struct.pack(">HI", len(OFF_LINE) + 4, len(OFF_LINE)) + OFF_LINE


class Asker(threading.Thread):
    """An agent that asks again and again; each answer with when it was asked for and whole."""

    PAUSE_SECONDS = 0.002

    def __init__(self, port):
        super().__init__()
        self._port, self._done = port, threading.Event()
        self.answers, self.lost = [], 0

    def run(self):
        while not self._done.is_set():
            asked = time.monotonic()
            try:
                answer = self._ask()
            except OSError:
                answer = b""
            if len(answer) < 6 or len(answer) != struct.unpack(">H", answer[:2])[0] + 2:
                self.lost += 1
            self.answers.append((asked, time.monotonic(), answer))
            self._done.wait(self.PAUSE_SECONDS)

    def _ask(self):
        with socket.create_connection((ADDRESS, self._port), timeout=5) as connection:
            answer = b""
            while piece := connection.recv(4096):
                answer += piece
            return answer

    def finish(self):
        self._done.set()
        self.join()


def by_hand(work, *arguments):
    """The window on a slow disk, used with the real pointer; the lines told, and what agents got
    meanwhile."""
    environment = dict(os.environ, LD_PRELOAD=str(BUILD / "bench/slowdisk.so"))
    with subprocess.Popen([BUILD / "bench/handwork", work, *map(str, arguments)], text=True,
                          env=environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL) as hand:
        asker = Asker(int(hand.stdout.readline()))
        asker.start()
        lines = [hand.stdout.readline() for _ in range(arguments[0] if arguments else 1)]
        asker.finish()
        hand.stdin.close()
    if hand.returncode != 0:
        raise RuntimeError(f"handwork {work} ended with {hand.returncode}")
    return [tuple(float(word) for word in line.split()) for line in lines], asker


def inside(figure, number, in_memory=False):
    """The rounds of a piece of work inside the program: pairs of numbers."""
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    if in_memory and os.access("/dev/shm", os.W_OK):
        environment["TMPDIR"] = "/dev/shm"
    result = subprocess.run([BUILD / "bench/insidework", figure, str(number)], text=True,
                            env=environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                            check=False)
    if result.returncode != 0:
        raise RuntimeError(f"{figure}: {result.stderr}")
    return [tuple(float(word) for word in line.split()) for line in result.stdout.splitlines()]


def wakeups(pid):
    """How often the threads of a process have gone to sleep so far."""
    return sum(int(line.split()[1])
               for status in pathlib.Path(f"/proc/{pid}/task").glob("*/status")
               for line in status.read_text().splitlines()
               if line.startswith("voluntary_ctxt_switches:"))


class Idle:
    """The program, watching and not, and the yardstick, hidden, several of each beside each other,
    each with a network and shared memory of its own: they do next to nothing, so a minute serves
    for all of them."""

    APART = ["unshare", "--net", "--ipc", "sh", "-c", 'ip link set lo up && exec "$@"', "idle"]

    def __init__(self, rounds, seconds):
        self._rounds, self._seconds = rounds, seconds

    def measure(self):
        """By round, of each of the three the percentage of a core and the wake-ups a second."""
        program = [BUILD / "bin/Lumikey"]
        bare = [BUILD / "bench/bareprogram", ADDRESS, str(PROGRAM_PORT), "hidden", "timer"]
        kinds = (("watching", program, WATCHING), ("idle", program, IN_THE_TRAY),
                 ("bare", bare, IN_THE_TRAY))
        started = []
        with tempfile.TemporaryDirectory() as scratch:
            try:
                for number in range(self._rounds):
                    for name, command, settings in kinds:
                        world = program_world(pathlib.Path(scratch, f"{number}-{name}"), settings)
                        started.append(self._start(command, *world))
                time.sleep(IDLE_AFTER_SECONDS)
                before = self._taken(started)
                time.sleep(self._seconds)
                after = self._taken(started)
            finally:
                for process in started:
                    process.terminate()
                    process.wait()
        each = [((cpu - cpu_before) / self._seconds * 100, (woken - woken_before) / self._seconds)
                for (cpu_before, woken_before), (cpu, woken) in zip(before, after)]
        return list(zip(each[::3], each[1::3], each[2::3]))

    def _start(self, command, environment, cwd):
        with open(cwd / f"{pathlib.Path(command[0]).name}.log", "wb") as log:
            process = subprocess.Popen(self.APART + command, env=environment, cwd=cwd,
                                       stdout=log, stderr=log)
        process.log = pathlib.Path(log.name)
        time.sleep(APART_SECONDS)  # a display turns programs away that come all at once
        return process

    @staticmethod
    def _taken(processes):
        for process in processes:
            if process.poll() is not None:
                raise RuntimeError(f"{process.log.stem} ended with {process.returncode}: "
                                   f"{process.log.read_text(errors='replace')}")
        return [(cpu_seconds(process.pid), wakeups(process.pid)) for process in processes]
