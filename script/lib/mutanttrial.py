"""One trial of script/test mutants, in a world of its own (script/lib/mutants-world).

mutanttrial.py JOB RESULT, both JSON. The job tells what is to be changed, if anything, and which
tests are to run, in their order; the result tells what became of it.
"""

import ctypes
import json
import os
import pathlib
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time

BUILD_SECONDS = 1800
LARGEST_FILE = 1 << 28  # a change may print without end
PROGRAMS = ["Lumikey", "lumikey-agent", "lumikey-minimal-agent", "lumikey-brightness",
            "lumikey-minimal-companion", "recorder", "companion-publisher",
            "settingswriter", "lumikey_testsupport"]


def adopt_orphans():
    """What a test leaves running becomes a child of this process, which ends it."""
    pr_set_child_subreaper = 36
    ctypes.CDLL(None).prctl(pr_set_child_subreaper, 1, 0, 0, 0)


def descendants(pid):
    found = []
    for task in pathlib.Path(f"/proc/{pid}/task").glob("*/children"):
        try:
            children = task.read_text().split()
        except OSError:
            continue
        for child in map(int, children):
            found += [child, *descendants(child)]
    return found


def end_descendants():
    while left := descendants(os.getpid()):
        for pid in left:
            try:
                os.kill(pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
        try:
            while os.waitpid(-1, os.WNOHANG)[0]:
                pass
        except ChildProcessError:
            pass
        time.sleep(0.01)


def drop_shared_memory():
    """Blocks and semaphores of killed programs are named by numbers of files that go with a test;
    the next test may be given the same numbers."""
    if os.environ.get("LUMIKEY_APART"):  # else they are the machine's
        subprocess.run(["ipcrm", "--all"], check=True, stdout=subprocess.DEVNULL)


class Trial:
    def __init__(self, job):
        self.job = job
        self.build = pathlib.Path(job["build"])
        self.scratch = pathlib.Path(tempfile.mkdtemp())
        self.seconds = {}
        self.output = ""

    def ninja(self, *targets):
        done = subprocess.run(["ninja", "-C", self.build, *targets], timeout=BUILD_SECONDS,
                              stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)
        if done.returncode != 0:
            self.output = done.stdout[-4000:]
        return done.returncode == 0

    def spare_form_users(self):
        """After a change of the form that leaves its members alone, those that build the form are
        compiled anew, not those that use it."""
        headers = [str(header) for header in self.build.glob("*autogen/include/ui_*.h")]
        if not self.ninja("lumikey_ui_autogen"):
            return
        deps = subprocess.run(["ninja", "-C", self.build, "-t", "deps"], capture_output=True,
                              text=True, check=True).stdout
        spared = []
        for block in deps.split("\n\n"):
            head, *files = [line.strip() for line in block.splitlines()] or [""]
            source = self.build / files[0] if files else None
            if any(str(self.build / file) in headers for file in files) and source.is_file() \
                    and "setupUi(" not in source.read_text():
                spared.append(head.split(":")[0])
        for name in spared:
            os.utime(self.build / name)
        self.ninja("-t", "restat", *spared)

    def fresh(self, name):
        folder = self.scratch / name
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(mode=0o700)
        return str(folder)

    def is_green(self, test, coverage):
        """Runs a test, a home and temporary files of its own around it."""
        environment = os.environ | dict(line.split("=", 1) for line in test["environment"])
        home = self.fresh("home")
        environment |= {
            "HOME": home, "XDG_CONFIG_HOME": f"{home}/.config", "XDG_CACHE_HOME": f"{home}/.cache",
            "XDG_DATA_HOME": f"{home}/.local/share", "XDG_RUNTIME_DIR": self.fresh("runtime"),
            "TMPDIR": self.fresh("t"), "GCOV_PREFIX": coverage, "GCOV_ERROR_FILE": os.devnull}
        log = self.scratch / "log"
        began = time.monotonic()
        with log.open("wb") as stream:
            process = subprocess.Popen(
                test["command"], cwd=test["folder"], env=environment, stdin=subprocess.DEVNULL,
                stdout=stream, stderr=stream,
                preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (LARGEST_FILE,) * 2))
            try:
                green = process.wait(test["limit"]) == 0
                self.output = ""
            except subprocess.TimeoutExpired:
                green = False
                self.output = f"no end after {test['limit']} s"
        self.seconds[test["name"]] = time.monotonic() - began
        end_descendants()
        drop_shared_memory()
        if not green and not self.output:
            self.output = log.read_bytes().decode(errors="replace")[-4000:]
        return green

    def lines_that_ran(self, coverage):
        """By source, which lines there are and which ran, and the lines of each function."""
        data = list(pathlib.Path(coverage).rglob("*.gcda"))
        names = []
        for name in data:
            notes = pathlib.Path("/", name.relative_to(coverage)).with_suffix(".gcno")
            if "autogen" not in name.name and "mocs_compilation" not in name.name \
                    and notes.is_file():
                name.with_suffix(".gcno").symlink_to(notes)
                names.append(str(name))
        if not names:
            return {}  # every process was killed
        done = subprocess.run(["gcov", "--json-format", "--stdout", *names], cwd=coverage,
                              stdin=subprocess.DEVNULL, capture_output=True, check=True)
        found = {}
        for document in filter(None, done.stdout.split(b"\n")):
            for source in json.loads(document)["files"]:
                name = source["file"].removeprefix(self.job["tree"] + "/")
                if name.startswith(("/", "tests/", "fuzz/")):
                    continue
                here = found.setdefault(name, {"lines": {}, "functions": set()})
                for line in source["lines"]:
                    number = line["line_number"]
                    here["lines"][number] = here["lines"].get(number, False) or line["count"] > 0
                here["functions"] |= {(function["start_line"], function["end_line"])
                                      for function in source["functions"]}
        return {name: {"ran": sorted(line for line, ran in here["lines"].items() if ran),
                       "lines": sorted(here["lines"]), "functions": sorted(here["functions"])}
                for name, here in found.items()}

    def run(self):
        """Says what became of the job, and leaves nothing but that."""
        change = self.job["change"]
        if change:
            file = pathlib.Path(self.job["tree"], change["file"])
            whole = file.read_bytes()
            text = whole.decode()
            if text[change["start"]:change["end"]] != change.get("old", ""):
                sys.exit(f"{file} has changed since the draw")
            file.write_bytes((text[:change["start"]] + change["new"]
                              + text[change["end"]:]).encode())
        try:
            return self.try_tests()
        finally:
            if change:
                file.write_bytes(whole)  # where the tree has no layer above it
            shutil.rmtree(self.scratch, ignore_errors=True)

    def try_tests(self):
        result = {"verdict": "survived", "test": "", "output": "", "unsteady": []}
        if self.job["change"] and self.job["change"]["file"].endswith(".ui"):
            self.spare_form_users()
        if self.job["change"] and not self.ninja(*PROGRAMS):
            return result | {"verdict": "unbuilt", "output": self.output}
        for test in self.job["tests"]:
            if self.job["change"] and test["target"] and not self.ninja(test["target"]):
                return result | {"verdict": "unbuilt", "output": self.output}
            coverage = self.fresh("coverage")
            if not self.is_green(test, coverage):
                # Beside other work a test may be late: the same twice is no accident.
                if not self.is_green(test, coverage):
                    result |= {"verdict": "red", "test": test["name"], "output": self.output}
                    break
                result["unsteady"].append(test["name"])
            if self.job["coverage"]:
                result["lines"] = self.lines_that_ran(coverage)
        return result | {"seconds": self.seconds}


def main(job_name, result_name):
    adopt_orphans()
    result = Trial(json.loads(pathlib.Path(job_name).read_text())).run()
    pathlib.Path(result_name).write_text(json.dumps(result))


if __name__ == "__main__":
    main(*sys.argv[1:])
