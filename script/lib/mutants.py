"""Breaks one thing at a time and shows that some test goes red.

mutants.py LIST FOLDER [WORD]: LIST as tests/mutants.txt, FOLDER for the copy that is broken and for
its build, WORD to try only the mutants whose file or tests contain it. The checkout is only read.
"""

import dataclasses
import pathlib
import re
import shutil
import subprocess
import sys
import time

BUILD_SECONDS = 1200
TEST_SECONDS = 120


@dataclasses.dataclass
class Mutant:
    line: int  # of the list
    file: str
    tests: tuple
    old: str
    new: str

    def __str__(self):
        old, new = (" / ".join(part.split("\n")) for part in (self.old, self.new))
        return f"{self.file}: {re.sub(' +', ' ', old)}  ->  {re.sub(' +', ' ', new) or '(nothing)'}"


def read_list(name):
    """The mutants, in their order."""
    mutants, heading, old, new = [], None, [], []

    def finish(number):
        if old and heading:
            mutants.append(Mutant(number, *heading, "\n".join(old), "\n".join(new)))
        elif old or new:
            sys.exit(f"{name}:{number}: nothing to replace, or no heading")
        old.clear()
        new.clear()

    for number, line in enumerate(pathlib.Path(name).read_text().splitlines() + [""], 1):
        if line == "-" or line.startswith("- "):
            if new:
                finish(number - 1)
            old.append(line[2:])
        elif line == "+" or line.startswith("+ "):
            new.append(line[2:])
        elif line.startswith("@ "):
            finish(number - 1)
            file, tests = line[2:].split(": ")
            heading = file, tuple(tests.split())
        elif not line or line.startswith("#"):
            finish(number - 1)
        else:
            sys.exit(f"{name}:{number}: neither '@', '-', '+' nor '#'")
    return mutants


def refresh(copy):
    """Makes the copy what the checkout is; files that are the same keep their time."""
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                            check=True, capture_output=True, text=True).stdout
    names = {name for name in listed.split("\0") if name and pathlib.Path(name).is_file()}
    for name in names:
        source, target = pathlib.Path(name), copy / name
        if not target.is_file() or target.read_bytes() != source.read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(source, target)
            target.chmod(source.stat().st_mode)
    for target in list(copy.rglob("*")):
        if target.is_file() and str(target.relative_to(copy)) not in names:
            target.unlink()


class Build:
    def __init__(self, source, folder):
        self.source = source
        self.folder = folder
        self.tests_of_targets = {}

    def configure(self):
        # Without optimisation, which is the quickest to build; a mutant may leave a name unused.
        run_or_exit(["cmake", "-S", self.source, "-B", self.folder, "-G", "Ninja",
                     "-DCMAKE_BUILD_TYPE=", "-DLUMIKEY_WARNINGS_AS_ERRORS=OFF"])

    def build(self, targets):
        return subprocess.run(["cmake", "--build", self.folder, "--target", *targets],
                              timeout=BUILD_SECONDS, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, check=False)

    def test(self, targets):
        """Runs the tests of the targets, one after another, up to the first that fails."""
        # Some programs are several tests, whose names begin with the program's.
        pattern = "^(" + "|".join(f"{target}(_[0-9]+)?" for target in targets) + ")$"
        return subprocess.run(["ctest", "--test-dir", self.folder, "-R", pattern, "--timeout",
                               str(TEST_SECONDS), "--stop-on-failure", "--no-tests=error"],
                              stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              check=False)


def run_or_exit(command):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    if done.returncode != 0:
        sys.exit(f"{done.stdout}{done.stderr}")


def red_tests(output):
    return " ".join(re.findall(r"^\s*\d+ - (\S+) \(", output, re.MULTILINE)) or "?"


def attempt(build, mutant):
    """One word on what became of the mutant, and which test was red."""
    file = build.source / mutant.file
    whole = file.read_text()
    file.write_text(whole.replace(mutant.old, mutant.new))
    try:
        built = build.build(mutant.tests)
        if built.returncode != 0:
            return "UNBUILT", built.stdout[-2000:]
        tested = build.test(mutant.tests)
        return ("SURVIVED", "") if tested.returncode == 0 else ("killed", red_tests(tested.stdout))
    finally:
        file.write_text(whole)


def main(list_name, folder_name, word=""):
    mutants = read_list(list_name)
    wrong = [mutant for mutant in mutants if pathlib.Path(mutant.file).read_text()
             .count(mutant.old) != 1 or mutant.old == mutant.new]
    for mutant in wrong:
        print(f"{list_name}:{mutant.line}: does not apply exactly once: {mutant}")
    if wrong:
        return 1
    mutants = [mutant for mutant in mutants
               if word in mutant.file or any(word in test for test in mutant.tests)]
    folder = pathlib.Path(folder_name).resolve()
    build = Build(folder / "source", folder / "build")
    refresh(build.source)
    build.configure()

    targets = sorted({test for mutant in mutants for test in mutant.tests})
    print(f"Building and running {len(targets)} test programs as they are", flush=True)
    built = build.build(targets)
    if built.returncode != 0:
        sys.exit(built.stdout[-4000:])
    for target in targets:
        tested = build.test([target])
        if tested.returncode != 0:
            sys.exit(f"{target} fails without a mutant\n{tested.stdout[-4000:]}")

    start = time.monotonic()
    left = []
    for number, mutant in enumerate(mutants, 1):
        began = time.monotonic()
        result, detail = attempt(build, mutant)
        seconds = time.monotonic() - began
        print(f"{number:3}/{len(mutants)} {seconds:5.1f} s  {result}  {mutant}"
              + (f"  [{detail}]" if detail else ""), flush=True)
        if result != "killed":
            left.append(mutant)
    minutes = (time.monotonic() - start) / 60
    print(f"\n{len(mutants) - len(left)} of {len(mutants)} mutants were seen by a test, "
          f"in {minutes:.1f} minutes")
    for mutant in left:
        print(f"error: not seen: {list_name}:{mutant.line}: {mutant}")
    return 1 if left or not mutants else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
