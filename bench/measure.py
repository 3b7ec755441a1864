"""Measures Lumikey beside its yardsticks and prints one table; script/bench calls it.

Every figure is a ratio of two measurements of the same run, taken in turns, so that a slow or busy
machine slows both. What is shown is the median of the rounds, and as ratio the median of the ratios
of the rounds. Wants a display, a throw-away home and the release build.
"""

import argparse
import json
import pathlib
import statistics
import sys

sys.dont_write_bytecode = True
from processes import (LOADS, NEIGHBOUR, OFF_ANSWER, Bare, Idle, Program, answers,  # noqa: E402
                       by_hand, come_and_go, inside, neighbour_cpu_ms)
from tables import Row, markdown  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parents[1]
MEGABYTE = 1_000_000


class Runs:
    """How often and how long."""

    def __init__(self, quick):
        self.rounds = 3 if quick else 7
        self.load_ms = 300 if quick else 1500
        self.growth_ms = 150 if quick else 600
        self.idle_s = 5 if quick else 60
        self.changes = 5_000 if quick else 100_000
        self.drags = 1 if quick else 3
        self.clicks = 3 if quick else 15
        self.floods = 4


def pairs_row(name, unit, pairs, digits=1, **limit):
    """The row of rounds, each of the program and the baseline."""
    return Row(name, unit, statistics.median(p for p, _ in pairs),
               statistics.median(b for _, b in pairs),
               statistics.median(p / b for p, b in pairs), digits, **limit)


def in_turns(rounds, program, baseline):
    return [(program(), baseline()) for _ in range(rounds)]


def serving(runs):
    """Both servers wait side by side; the same client asks one and then the other."""
    with Program() as program, Bare("bareserver") as bare, Bare("bareprogram") as qt:
        for clients, words in ((1, "one client in a row"), (8, "8 clients at once"),
                               (64, "64 clients at once")):
            for server in (program, bare, qt):
                answers(server, clients, runs.load_ms // 3)  # warm
            taken = [[answers(server, clients, runs.load_ms) for server in (program, bare, qt)]
                     for _ in range(runs.rounds)]
            yield pairs_row(f"answers, {words}", "1/s",
                            [(p["rate"], b["rate"]) for p, b, _ in taken], 0,
                            at_least=None if clients == 1 else 0.7)
            yield pairs_row(f"CPU time of an answer, {words}, beside a bare Qt server", "µs",
                            [(p["cpu"], q["cpu"]) for p, _, q in taken], at_most=1.05)
            yield pairs_row(f"99th percentile latency, {words}", "µs",
                            [(p["p99"], b["p99"]) for p, b, _ in taken], 0, at_most=2.5)
            yield Row(f"answers lost, {words}", "", sum(p["lost"] for p, _, _ in taken),
                      sum(b["lost"] for _, b, _ in taken), None, 0, program_at_most=0)
            yield pairs_row(f"for comparison: a bare Qt server, {words}", "1/s",
                            [(q["rate"], b["rate"]) for _, b, q in taken], 0)


def starting(runs):
    def start(kind):
        with kind() as process:
            cpu = process.cpu_until_answer_ms
            process.settle()
            return cpu, process.memory_kib() / 1024

    neighbours = []
    taken = []
    for _ in range(runs.rounds):
        taken.append((start(Program), start(Bare), start(lambda: Bare("bareprogram", "raster"))))
        if NEIGHBOUR.exists():
            neighbours.append(neighbour_cpu_ms())
    cpu, memory = ([tuple(kind[figure] for kind in each) for each in taken] for figure in (0, 1))
    yield pairs_row("start until the first answer, CPU time", "ms",
                    [(p, b) for p, b, _ in cpu], at_most=1.5)
    yield pairs_row("for comparison: the start beside a window without OpenGL", "ms",
                    [(p, r) for p, _, r in cpu])
    name = "the same beside ckb-next, until it shows its settings window"
    if neighbours:
        yield pairs_row(name, "ms", [(p[0], n) for p, n in zip(cpu, neighbours)], at_most=1)
    else:
        yield Row(name, "ms", None, None, None)
    yield pairs_row("memory after start (PSS)", "MiB", [(p, b) for p, b, _ in memory],
                    at_most=1.15)
    yield pairs_row("for comparison: memory beside a window without OpenGL", "MiB",
                    [(p, r) for p, _, r in memory])


def idling(runs):
    taken = Idle(runs.rounds, runs.idle_s).measure()
    yield pairs_row(f"CPU while idle in the tray for {runs.idle_s} s, auto-dim on", "% of a core",
                    [(watching[0], bare[0]) for watching, _, bare in taken], 3, at_most=3,
                    program_at_most=0.3)
    for state, figures in (("on", [watching[1] for watching, _, _ in taken]),
                           ("off", [idle[1] for _, idle, _ in taken])):
        yield Row(f"wake-ups meanwhile, auto-dim {state}", "1/s", statistics.median(figures), None,
                  None, program_at_most=11)


def square(runs):
    yield pairs_row("the square's picture for a new hue, equal in each pixel", "µs",
                    inside("square", runs.rounds), faster=15)


def step(runs):
    yield pairs_row("a brightness step: words, five pictures, repaint", "µs",
                    inside("step", runs.rounds), 0, faster=3)


def write(runs):
    yield pairs_row("one settings write", "µs", inside("write", runs.rounds), at_most=1.1)


def written(runs):
    """Bytes and files, which tell what a write costs on any disk."""
    taken = inside("written", runs.rounds)
    yield pairs_row("files made by one settings write", "", [(p, b) for p, b, _, _ in taken], 0,
                    at_most=1)
    yield pairs_row("bytes written by one settings write", "B", [(p, b) for _, _, p, b in taken], 0,
                    at_most=1)


def slowdisk(runs):
    """With a disk on which a file is safe after 10 ms."""
    seconds, latencies, repaints, lost = [], [], [], 0
    for _ in range(runs.drags):
        [(took, painted)], asker = by_hand("drag")
        seconds.append(took)
        repaints.append(painted / took)
        latencies += [(end - asked) * 1000 for asked, end, _ in asker.answers]
        lost += asker.lost
    yield Row("a drag of the slider for 4 s, slow disk", "s", max(seconds), None, None, 2,
              program_at_most=4.4)
    yield Row("99th percentile of an answer meanwhile", "ms",
              statistics.quantiles(latencies, n=100)[-1], None, None, program_at_most=50)
    yield Row("answers lost meanwhile", "", lost, None, None, 0, program_at_most=0)
    yield Row("repaints meanwhile", "1/s", min(repaints), None, None, program_at_least=20)

    clicks, asker = by_hand("click", runs.clicks)
    until = [next(end for _, end, answer in asker.answers if end > at and answer != OFF_ANSWER) - at
             for at, in clicks]
    yield Row("a click on \"Enabled\" until an answer holds it, slow disk", "ms",
              statistics.median(until) * 1000, None, None, program_at_most=30)


def flood(runs):
    """Clients that leave at once, 20,000 in a row."""
    with Program() as program:
        program.settle()
        before = program.own_memory_kib()
        for _ in range(runs.floods):
            come_and_go(program, 20_000)
        yield Row(f"memory after {runs.floods} floods of 20,000 clients, more than before", "MiB",
                  (program.own_memory_kib() - before) / 1024, None, None, program_at_most=4)
    taken, asker = by_hand("flood", runs.floods)
    yield Row("the longest turn of the event loop meanwhile", "ms",
              max(longest for longest, _ in taken) * 1000, None, None, program_at_most=50)
    yield Row("of a turn, at most computed", "ms", max(most for _, most in taken) * 1000, None,
              None)
    yield Row("answers lost meanwhile", "", asker.lost, None, None, 0, program_at_most=0)


def size(runs):
    del runs
    dist = ROOT / "build/windows/dist"
    installers = sorted((ROOT / "build/package").glob("Lumikey-*-setup.exe"))
    files = [file.stat().st_size for file in dist.rglob("*") if file.is_file()]
    yield Row("the dist folder of the Windows build", "MB",
              sum(files) / MEGABYTE if files else None, None, None, program_at_most=20)
    yield Row("the installer", "MB", installers[-1].stat().st_size / MEGABYTE
              if installers else None, None, None, program_at_most=7)


def clients(runs):
    with Program() as program, Bare("bareserver") as bare:
        for count in LOADS:
            taken = in_turns(runs.rounds, lambda n=count: answers(program, n, runs.growth_ms),
                             lambda n=count: answers(bare, n, runs.growth_ms))
            row = pairs_row(f"answers, {count} clients at once", "1/s",
                            [(p["rate"], b["rate"]) for p, b in taken], 0)
            row.limit = "none lost"
            row.require(all(p["lost"] == 0 for p, _ in taken))
            yield row


def foreign(runs):
    yield pairs_row("one settings write beside 10,000 foreign keys", "µs",
                    inside("foreign", runs.rounds), 0, at_most=1.1)


def changes(runs):
    # Each change is stored, and the disk would make it wait for minutes.
    samples = inside("changes", runs.changes, in_memory=True)
    tenth = len(samples) // 10
    # Early and late, each over as many changes, because the allocator keeps and returns pages.
    for number, name, limit in ((1, "the heap in use", {"at_most": 1.02}),
                                (0, "the window's memory, with what the allocator keeps", {})):
        mib = [sample[number] / 1024 for sample in samples]
        early, late = statistics.median(mib[tenth:2 * tenth]), statistics.median(mib[-tenth:])
        yield Row(f"{name}, after {runs.changes:,} brightness changes, "
                  f"against {runs.changes // 10:,}", "MiB", late, early, late / early, **limit)


TABLES = {
    "Speed and cost": [serving, starting, idling, square, step, write, written, slowdisk, flood, size],
    "How cost grows": [clients, foreign, changes],
}
NAMES = [figure.__name__ for figures in TABLES.values() for figure in figures]


def main():
    parser = argparse.ArgumentParser(prog="script/bench", description=(
        "Measures Lumikey beside its yardsticks; ends with an error when a limit is missed."))
    parser.add_argument("figures", nargs="*", metavar="FIGURE",
                        help=f"{', '.join(NAMES)}; all without a name")
    parser.add_argument("--json", action="store_true", help="JSON instead of a table")
    parser.add_argument("--quick", action="store_true",
                        help="three short rounds, to try it out: the figures mean little")
    arguments = parser.parse_args()
    unknown = set(arguments.figures) - set(NAMES)
    if unknown:
        parser.error(f"no such figure: {', '.join(sorted(unknown))}")

    runs = Runs(arguments.quick)
    tables = {}
    for title, figures in TABLES.items():
        for figure in figures:
            if arguments.figures and figure.__name__ not in arguments.figures:
                continue
            for row in figure(runs):
                print(row.line(), file=sys.stderr, flush=True)
                tables.setdefault(title, []).append(row)

    if arguments.json:
        print(json.dumps({title: [row.as_json() for row in rows] for title, rows in tables.items()},
                         indent=2, ensure_ascii=False))
    else:
        print(markdown(tables))
    missed = [row.name for rows in tables.values() for row in rows if row.missed]
    for name in missed:
        print(f"missed: {name}", file=sys.stderr)
    return 1 if missed else 0


sys.exit(main())
