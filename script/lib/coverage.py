"""Shows how many lines ran, by folder, and fails where they are too few, or where a source was not
counted at all.

coverage.py LINES.json CORES.txt: LINES.json as gcovr writes it, CORES.txt as tests/cores.txt. Run
from the root of the sources.
"""

import collections
import json
import pathlib
import subprocess
import sys

CORES_PERCENT = 100
REST_PERCENT = 90

COUNTED = ["app", "colorpicker", "companion", "examples", "lighting", "system", "ui"]
NOT_COUNTED = [
    "system/testing/",  # stands for the system in tests
    "_windows.cpp",  # compiled for Windows only, where gcov does not count
]


class Count:
    def __init__(self):
        self.ran = 0
        self.lines = 0

    def add(self, other):
        self.ran += other.ran
        self.lines += other.lines

    def percent(self):
        return 100 * self.ran / self.lines

    def __str__(self):
        return f"{self.percent():6.1f} %   {self.ran} of {self.lines}" if self.lines else "-"


def read(lines_file):
    """Counts and the lines that did not run, by source."""
    counts, missed = {}, {}
    for source in json.loads(lines_file.read_text())["files"]:
        lines = [line for line in source["lines"] if not line.get("gcovr/noncode")]
        if not lines:
            continue
        count = Count()
        count.lines = len(lines)
        count.ran = sum(line["count"] > 0 for line in lines)
        counts[source["file"]] = count
        missed[source["file"]] = [line["line_number"] for line in lines if line["count"] == 0]
    return counts, missed


def sources():
    """All whose lines are to be counted."""
    listed = subprocess.run(["git", "ls-files", "--", *COUNTED], check=True, capture_output=True,
                            text=True).stdout.splitlines()
    return [name for name in listed
            if name.endswith(".cpp") and not any(part in name for part in NOT_COUNTED)]


def main(lines_name, cores_name):
    counts, missed = read(pathlib.Path(lines_name))
    listed = [line for line in pathlib.Path(cores_name).read_text().splitlines()
              if line and not line.startswith("#")]
    gone = [core for core in listed if not pathlib.Path(core).is_file()]
    # A header of tables alone has no lines to run, but a source always has.
    unseen = [source for source in sources() if source not in counts]

    table = collections.defaultdict(lambda: (Count(), Count()))
    for name, count in counts.items():
        column = 0 if name in listed else 1
        for row in (str(pathlib.Path(name).parent), "all"):
            table[row][column].add(count)

    print(f"{'folder':<16} {'cores':<26} the rest")
    for row in sorted(table, key=lambda name: (name == "all", name)):
        cores, rest = table[row]
        print(f"{row + ('' if row == 'all' else '/'):<16} {str(cores):<26} {rest}")

    print("\nLines that did not run:")
    for name in sorted(missed):
        if missed[name]:
            kind = "core" if name in listed else "rest"
            print(f"  {kind} {counts[name]}  {name}: {' '.join(map(str, missed[name]))}")

    cores, rest = table["all"]
    failures = [f"{name} is listed in {cores_name}, but not there" for name in gone]
    failures += [f"nothing was counted of {name}" for name in unseen]
    if cores.ran < cores.lines or not cores.lines:
        failures.append(f"the cores are under {CORES_PERCENT} %")
    if not rest.lines or rest.percent() < REST_PERCENT:
        failures.append(f"the rest is under {REST_PERCENT} %")
    for failure in failures:
        print(f"error: {failure}", file=sys.stderr)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
