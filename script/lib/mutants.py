"""Draws changes to the sources at random, and tells how many of them a test sees.

mutants.py [OPTION...] -- WORLD...: script/test mutants calls it and says what starts a world. The
checkout is only read: what is changed is a copy in the build folder.
"""

import argparse
import collections
import concurrent.futures
import dataclasses
import functools
import hashlib
import json
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).parent))
import mutations  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = ROOT / "build/mutants"
TREE = FOLDER / "tree"
BUILD = TREE / "build/mutants"
LAST_DRAW = FOLDER / "last-draw.json"
EQUIVALENTS = pathlib.Path("tests/equivalents.txt")

LEAST_PERCENT = 90
WORLDS = 3  # beside each other; most tests wait more than they work
QUICK_TESTS = 10
STEADY_SECONDS = 10  # a test that takes longer may wait for time to pass
SHEET = "darkstyle.qss"
FORM = "ui_mainwindow.h"  # made of the form
# What reads the sources and runs nothing of them: the files, and what must stand where they change.
READERS = {
    "tst_translations": (re.compile(r"(colorpicker|ui)/.*\.(cpp|h|ui)|app/translation\.cpp"),
                         re.compile(r"\"|<string")),
}


def say(text):
    print(text, flush=True)


def digest(*parts):
    return hashlib.sha256("\0".join(parts).encode()).hexdigest()


# ---- The copy and its build

def listed_files():
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                            cwd=ROOT, check=True, capture_output=True, text=True).stdout
    return {name for name in listed.split("\0") if name and (ROOT / name).is_file()}


def refresh():
    """Makes the copy what the checkout is; files that are the same keep their time."""
    names = listed_files()
    for name in names:
        source, target = ROOT / name, TREE / name
        if not target.is_file() or target.read_bytes() != source.read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(source, target)
            target.chmod(source.stat().st_mode)
    for folder, folders, files in os.walk(TREE):
        if folder == str(TREE) and "build" in folders:
            folders.remove("build")
        for file in files:
            target = pathlib.Path(folder, file)
            if str(target.relative_to(TREE)) not in names:
                target.unlink()


@functools.cache
def text_of(name):
    """What a file of the copy holds; nothing, where the build remembers one that is gone."""
    file = TREE / name
    return file.read_text(errors="replace") if file.is_file() else ""


def build_all():
    for command in (["cmake", "--preset", "mutants"], ["cmake", "--build", "--preset", "mutants"]):
        done = subprocess.run(command, cwd=TREE, stdin=subprocess.DEVNULL, capture_output=True,
                              text=True, check=False)
        if done.returncode != 0:
            sys.exit(f"{done.stdout[-4000:]}{done.stderr}")


@dataclasses.dataclass
class Test:
    name: str
    command: list
    folder: str
    environment: list
    limit: float  # seconds
    label: str
    target: str  # of the build; empty for a script

    def job(self):
        return dataclasses.asdict(self)


def read_tests(one_room):
    """The tests; where one room is made for several, without that which each makes for itself."""
    shown = subprocess.run(["ctest", "--test-dir", BUILD, "--show-only=json-v1"],
                           check=True, capture_output=True, text=True).stdout
    tests = []
    for test in json.loads(shown)["tests"]:
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        command = test["command"]
        bare = command[3:] if command[0].endswith("script/lib/room") else command
        program = pathlib.Path(bare[0])
        inside = BUILD in program.parents
        tests.append(Test(test["name"], bare if one_room else command,
                          properties["WORKING_DIRECTORY"],
                          properties.get("ENVIRONMENT", []), properties.get("TIMEOUT", 120),
                          " ".join(properties.get("LABELS", [])),
                          str(program.relative_to(BUILD)) if inside else ""))
    return tests


def files_behind_objects():
    """By source of the build, the files of the tree that its compilation reads."""
    shown = subprocess.run(["ninja", "-C", BUILD, "-t", "deps"], check=True, capture_output=True,
                           text=True).stdout
    behind = collections.defaultdict(set)
    for block in shown.split("\n\n"):
        files = [line.strip() for line in block.splitlines()[1:]]
        inside = [os.path.relpath(os.path.join(BUILD, file), TREE) for file in files
                  if not file.startswith("/") or file.startswith(f"{TREE}/")]
        if inside:
            behind[inside[0]].update(inside)
    return behind


# ---- Worlds

class Worlds:
    """Runs jobs beside each other, each in a world that begins and ends with it."""

    def __init__(self, command, number):
        self.command = command
        self.apart = len(command) > 1
        self.pool = concurrent.futures.ThreadPoolExecutor(number if self.apart else 1)

    def submit(self, tests, change=None, coverage=False):
        return self.pool.submit(self.run, tests, change, coverage)

    def run(self, tests, change=None, coverage=False):
        job = {"tree": str(TREE), "build": str(BUILD), "coverage": coverage,
               "change": change and {"file": change.file, "start": change.start,
                                     "end": change.end, "old": change.old,
                                     "new": change.new},
               "tests": [test.job() for test in tests]}
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "job").write_text(json.dumps(job))
            environment = os.environ | {"LUMIKEY_APART": "yes" if self.apart else ""}
            done = subprocess.run([*self.command, str(TREE), folder / "job", folder / "result"],
                                  env=environment, stdin=subprocess.DEVNULL, capture_output=True,
                                  text=True, check=False)
            if done.returncode != 0:
                raise RuntimeError(f"a world failed: {done.stdout[-2000:]}{done.stderr[-2000:]}")
            return json.loads((folder / "result").read_text())


# ---- Which test runs which line

class Reach:
    """What each test runs. It is kept in the build folder, and taken anew for the tests that a
    change of the sources may have changed."""

    def __init__(self, tests, worlds):
        self.tests = tests
        self.behind = files_behind_objects()
        self.seen = {}
        self.find(worlds)
        self.lines = collections.defaultdict(lambda: collections.defaultdict(set))
        self.known = collections.defaultdict(set)
        self.functions = collections.defaultdict(set)
        self.size = {}
        programs_of_all = collections.defaultdict(set)
        for test in tests:
            found = self.seen[test.name]["lines"]
            self.size[test.name] = sum(len(source["ran"]) for source in found.values())
            for name, source in found.items():
                name = FORM if name.endswith(FORM) else name
                self.known[name].update(source["lines"])
                self.functions[name].update(map(tuple, source["functions"]))
                for line in source["ran"]:
                    self.lines[name][line].add(test.name)
                    if test.label == "e2e":
                        programs_of_all[name].add(line)
        # These end programs in ways that do not let them tell what they ran: what one of them
        # reaches all of them may.
        ends = {test.name for test in tests if test.label == "e2e"}
        for name, lines in programs_of_all.items():
            for line in lines:
                self.lines[name][line] |= ends

    def seconds(self, name):
        return self.seen[name]["seconds"][name]

    def find(self, worlds):
        cache = FOLDER / "reach"
        cache.mkdir(parents=True, exist_ok=True)
        texts = {name: (TREE / name).read_bytes().hex() for name in sorted(listed_files())
                 if not name.endswith((".md", ".png")) and name != str(EQUIVALENTS)
                 and not name.startswith((".", "script/"))}
        common = digest(*(name + text for name, text in texts.items()
                          if not name.startswith(("tests/unit/", "tests/gui/", "tests/e2e/"))))
        jobs = {}
        for test in self.tests:
            own = [path for path in self.behind.get(self.source(test), ()) if path in texts]
            own += [path for path in texts if path.endswith(f"{test.name}.py")]
            key = digest(common, json.dumps(test.job()).replace(str(TREE), ""),
                         *(texts[path] for path in sorted(own)))
            file = cache / f"{test.name}.json"
            kept = json.loads(file.read_text()) if file.is_file() else {}
            if kept.get("key") == key:
                self.seen[test.name] = kept
            else:
                roomy = dataclasses.replace(test, limit=2 * test.limit)
                jobs[worlds.submit([roomy], coverage=True)] = test, key, file
        if jobs:
            say(f"Running {len(jobs)} tests as they are, to see which lines they reach")
        red = []
        for job in concurrent.futures.as_completed(jobs):
            test, key, file = jobs[job]
            result = job.result()
            if result["verdict"] == "red":
                red.append(f"{result['output']}\n{test.name} fails without a change")
                say(red[-1])
                continue
            self.seen[test.name] = {"key": key, "lines": result["lines"],
                                    "seconds": result["seconds"]}
            file.write_text(json.dumps(self.seen[test.name]))
        if red:
            sys.exit(f"{len(red)} tests fail without a change")

    def source(self, test):
        if not test.target:
            return ""
        folder = os.path.relpath(test.folder, BUILD)
        return f"{folder}/{pathlib.Path(test.target).name.removeprefix('fuzz_')}.cpp"

    def of_file(self, name):
        return set().union(*self.lines[name].values())

    def of(self, change):
        """The names of the tests that may see the change."""
        readers = {name for name, (file, text) in READERS.items()
                   if file.fullmatch(change.file) and text.search(change.before + change.after)}
        return self.that_run(change) | readers & self.seen.keys()

    def that_run(self, change):
        """Those that run the line; where it has no code, those that run its function, its file, or
        what includes it."""
        name = FORM if change.file.endswith(".ui") else change.file
        if change.file.endswith(".qss"):
            return self.of_sheet()
        if not change.file.endswith(".ui"):
            last = change.line + change.old_lines
            lines = [line for line in range(change.line, last + 1) if line in self.known[name]]
            if lines:
                return set().union(*(self.lines[name][line] for line in lines))
            around = [(start, end) for start, end in self.functions[name]
                      if start <= change.line <= end]
            if around:
                start, end = max(around)
                return set().union(*(self.lines[name][line] for line in range(start, end + 1)))
        found = self.of_file(name)
        for source, files in self.behind.items():
            if name in files or name == FORM and any(file.endswith(FORM) for file in files):
                found |= self.of_file(source)
                found |= {test.name for test in self.tests if self.source(test) == source}
        return found

    def of_sheet(self):
        """Whatever runs the lines that name the sheet, or names it itself."""
        found = set()
        for source, files in self.behind.items():
            if source.startswith("ui/"):
                for number, line in enumerate(text_of(source).splitlines(), 1):
                    if SHEET in line:
                        found |= self.lines[source][number]
            elif any(SHEET in text_of(file) for file in files if file.startswith("tests/")):
                found |= {test.name for test in self.tests if self.source(test) == source}
        return found


# ---- Drawing and trying

def read_equivalents(changes):
    """The changes that nobody can notice; ends the program where the list is not of today."""
    known, wrong = {}, []
    by_name = collections.Counter(change.name() for change in changes)
    for number, line in enumerate((ROOT / EQUIVALENTS).read_text().splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        name, _, reason = line.partition("  #  ")
        if not reason.strip():
            wrong.append(f"{EQUIVALENTS}:{number}: no reason")
        elif by_name[name] != 1 or name in known:
            wrong.append(f"{EQUIVALENTS}:{number}: {by_name[name]} changes are named so: {name}")
        known[name] = reason
    if wrong:
        sys.exit("\n".join(wrong))
    return known


class Order:
    """Which tests are tried first: the quick ones, and those that look at little else."""

    def __init__(self, reach, tests, most):
        self.reach = reach
        self.most = most  # how many for one change
        self.tests = {test.name: test for test in tests}
        self.texts = {test.name: self.own_text(test) for test in tests}
        self.wins = collections.Counter()

    def own_text(self, test):
        files = self.reach.behind.get(self.reach.source(test), ())
        return "".join(text_of(file) for file in files if file.startswith("tests/"))

    def tests_for(self, change):
        names = self.reach.of(change)
        subject = pathlib.Path(change.file).stem
        words = [word for word in change.old.replace('"', " ").split() if len(word) > 3]

        def cost(name):
            ran = self.reach.seen[name]["lines"].get(change.file, {}).get("ran", ())
            likely = 0.02 + len(ran) / (self.reach.size[name] + 1)
            likely += 0.2 * (subject in self.texts[name] or subject in name)
            likely += 0.2 * sum(word in self.texts[name] for word in words[:3])
            likely += 0.2 * self.wins[change.file, name]
            return (0.3 + self.reach.seconds(name)) / likely

        return [self.limited(self.tests[name]) for name in sorted(names, key=cost)[:self.most]]

    def is_steady(self, name):
        return self.tests[name].label != "e2e" and self.reach.seconds(name) < STEADY_SECONDS

    def limited(self, test):
        return dataclasses.replace(test, limit=20 + 5 * self.reach.seconds(test.name))


@dataclasses.dataclass
class Outcome:
    change: mutations.Change
    verdict: str
    test: str
    tests: int
    seconds: float


class Draw:
    def __init__(self, worlds, order, changes):
        self.worlds, self.order = worlds, order
        self.changes = changes  # what is drawn next, without end or until nothing is left
        self.outcomes = []
        self.unbuilt = 0

    def attempt(self, change):
        began = time.monotonic()
        tests = left = self.order.tests_for(change)
        failing_anyway = []
        while True:
            result = self.worlds.run(left, change)
            if result["verdict"] != "red":
                break
            name = result["test"]
            if self.order.is_steady(name):
                break
            # It waits for time to pass, and may have been late, or in the way of those before it:
            # by itself it has to be red with the change and green without.
            alone = [self.order.limited(self.order.tests[name])]
            if self.worlds.run(alone, change)["verdict"] != "red":
                say(f"{name} passes by itself: what it says does not count")
            elif self.worlds.run(alone)["verdict"] == "red":
                say(f"{name} fails without a change: what it says does not count")
                failing_anyway.append(name)
            else:
                break
            left = left[[test.name for test in left].index(name) + 1:]
        verdict = {"red": "seen", "survived": "NOT SEEN", "unbuilt": "unbuilt"}[result["verdict"]]
        if verdict == "NOT SEEN" and failing_anyway:
            raise RuntimeError(f"{' '.join(failing_anyway)} failed without a change: nothing is "
                               f"known of {change.name()}")
        return Outcome(change, verdict, result["test"], len(tests), time.monotonic() - began)

    def run(self, count):
        pending = set()
        while len(self.outcomes) < count:
            while len(pending) + len(self.outcomes) < count:
                change = next(self.changes, None)
                if change is None:
                    break
                pending.add(self.worlds.pool.submit(self.attempt, change))
            if not pending:
                break
            done, pending = concurrent.futures.wait(
                pending, return_when=concurrent.futures.FIRST_COMPLETED)
            for future in done:
                self.take(future.result(), count)

    def take(self, outcome, count):
        change = outcome.change
        if outcome.verdict == "unbuilt":
            self.unbuilt += 1
            return
        self.outcomes.append(outcome)
        by = outcome.test or f"none of {outcome.tests} tests"
        if outcome.test:
            self.order.wins[change.file, outcome.test] += 1
        say(f"{len(self.outcomes):3}/{count} {outcome.seconds:5.1f} s  {outcome.verdict:8} "
            f"{change.name()}  [{by}]")


def drawn(places, seed, known):
    """Changes at random places, never two at one place."""
    dice = random.Random(seed)
    for place in dice.sample(places, len(places)):
        change = dice.choice(place)
        if change.name() not in known:
            yield change


def parse(arguments):
    parser = argparse.ArgumentParser(prog="script/test mutants")
    parser.add_argument("--count", type=int, default=100, help="how many changes (100)")
    parser.add_argument("--seed", type=int, default=random.SystemRandom().randrange(1_000_000),
                        help="draw the same once more")
    parser.add_argument("--file", default="", help="only in files whose names contain this")
    parser.add_argument("--again", action="store_true",
                        help="try those that the last draw left unseen")
    parser.add_argument("--quick", action="store_true",
                        help="run the likeliest tests only, so that fewer may be seen")
    parser.add_argument("--worlds", type=int, default=WORLDS, help="how many beside each other")
    return parser.parse_args(arguments)


def main(arguments):
    cut = arguments.index("--")
    options, command = parse(arguments[:cut]), arguments[cut + 1:]
    refresh()
    places = mutations.all_places(ROOT, TREE)
    by_name = {change.name(): change for place in places for change in place}
    known = read_equivalents([change for place in places for change in place])
    say("Building")
    build_all()
    worlds = Worlds(command, options.worlds)
    tests = read_tests(worlds.apart)
    order = Order(Reach(tests, worlds), tests, QUICK_TESTS if options.quick else len(tests))

    if options.again:
        names = json.loads(LAST_DRAW.read_text())
        changes = [by_name[name] for name in names if name in by_name and name not in known]
        options.count = len(changes)
        say(f"{len(names)} changes were left unseen; {len(changes)} of them can still be made")
    else:
        places = [place for place in places if options.file in place[0].file]
        changes = drawn(places, options.seed, known)
        say(f"Drawing {options.count} changes at {len(places)} places; --seed {options.seed}")
    draw = Draw(worlds, order, iter(changes))
    began = time.monotonic()
    draw.run(options.count)

    left = [outcome for outcome in draw.outcomes if outcome.verdict != "seen"]
    LAST_DRAW.write_text(json.dumps([outcome.change.name() for outcome in left]))
    for outcome in left:
        say(f"not seen: {outcome.change.file}:{outcome.change.line}: {outcome.change.before}  =>  "
            f"{outcome.change.after}")
    tried = len(draw.outcomes)
    seen = tried - len(left)
    drawn_by = "once more" if options.again else f"seed {options.seed}"
    say(f"\n{seen} of {tried} changes were seen by a test ({drawn_by}), "
        f"in {(time.monotonic() - began) / 60:.1f} minutes; "
        f"{draw.unbuilt} more did not compile; {len(known)} are known to change nothing")
    if not tried or 100 * seen < LEAST_PERCENT * tried:
        sys.exit(f"error: fewer than {LEAST_PERCENT} of 100 were seen")


if __name__ == "__main__":
    main(sys.argv[1:])
