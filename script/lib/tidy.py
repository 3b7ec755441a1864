"""Runs clang-tidy over every source of a build, and says so when it could not.

tidy.py ROOT BUILD: ROOT as the checkout, BUILD with compile_commands.json and all that is generated.

Reading Qt's headers and matching what is in them takes most of the time, so test programs, which
nothing else includes, are looked at many at once, each in a namespace of its own. Every other source
is looked at alone.
"""

import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

TESTS_AT_ONCE = 12
# What a build of this system never compiles; anything else that it leaves out is an error.
ELSEWHERE = re.compile(r"_windows\.cpp$|^packaging/|^tests/support/trialmachine\.cpp$"
                       r"|^tests/e2e/tst_(registry|session|taskbar)\.cpp$")
IN_ONE = re.compile(r"^tests/(unit|gui|e2e)/tst_\w+\.cpp$")
PROBE = "int *probe()\n{\n    return 0;\n}\n"


def arguments(entry):
    """The compiler's arguments, without what clang does not know or need of GCC's."""
    words, kept = shlex.split(entry["command"]), []
    skip = False
    for index, word in enumerate(words):
        if skip:
            skip = False
        elif word in ("-o", "-c"):
            skip = True
        elif word == "-include" and "cmake_pch" in words[index + 1]:
            skip = True
        elif not word.startswith(("-Winvalid-pch", "-fprofile")):
            kept.append(word)
    return kept


def tidy(folder, *more):
    """The command, with the settings of the checkout; its sources follow."""
    return ["clang-tidy", "--quiet", "-p", str(folder), *more]


def run(command):
    """Its exit code and all it said, but for the count of what it kept to itself."""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          check=False)
    said = [line for line in done.stdout.splitlines()
            if not re.match(r"\d+ warnings? (generated|treated as errors?)|Suppressed \d+", line)]
    return done.returncode, "\n".join(said)


def check_settings(root, folder):
    """Ends where clang-tidy cannot read its settings, or would find nothing with them."""
    code, said = run(tidy(folder, "--dump-config", f"{root}/app/main.cpp"))
    if code != 0 or "error" in said.split("---")[0].lower():
        sys.exit(f"clang-tidy does not understand its settings:\n{said.split('---')[0]}")
    # Under a folder whose settings are the checkout's.
    probe = folder / "probe.cpp"
    probe.write_text(PROBE)
    code, said = run(tidy(folder, str(probe)))
    if code == 0 or "modernize-use-nullptr" not in said:
        sys.exit(f"clang-tidy overlooked what it must find:\n{said}")


def write_group(folder, number, entries):
    """A source that includes those of the entries, and its command."""
    includes, bodies, words = [], [], []
    for name, entry in entries:
        text = pathlib.Path(entry["file"]).read_text()
        for line in re.findall(r'^#include .*$', text, re.M):
            if ".moc" not in line and line not in includes:
                includes.append(line)
        bodies.append(f'namespace {pathlib.Path(name).stem} {{\n#include "{entry["file"]}"\n}}\n')
        words += [word for word in arguments(entry) if word not in words]
    path = folder / f"tests_{number}.cpp"
    # Those of the project come first, so that one which lacks an include is still seen.
    includes.sort(key=lambda line: '"' not in line)
    path.write_text("\n".join(includes + bodies))
    return {"directory": entries[0][1]["directory"], "file": str(path),
            "command": shlex.join(words + ["-c", str(path)])}


def main():
    root, build = (pathlib.Path(word).resolve() for word in sys.argv[1:])
    folder = build / "tidy"
    folder.mkdir(exist_ok=True)
    entries = {os.path.relpath(entry["file"], root): entry
               for entry in json.loads((build / "compile_commands.json").read_text())}
    sources = subprocess.run(["git", "-C", str(root), "ls-files", "*.cpp"], text=True, check=True,
                             stdout=subprocess.PIPE).stdout.split()
    missing = [name for name in sources if name not in entries and not ELSEWHERE.search(name)]
    if missing:
        sys.exit("nobody builds, and so nobody looks at: " + " ".join(missing))
    known = {name: entries[name] for name in sources if name in entries}

    together = [name for name in known if IN_ONE.match(name)]
    groups = [together[start:start + TESTS_AT_ONCE]
              for start in range(0, len(together), TESTS_AT_ONCE)]
    commands = [{"directory": entry["directory"], "file": entry["file"],
                 "command": shlex.join(arguments(entry) + ["-c", entry["file"]])}
                for entry in known.values()]
    grouped = [write_group(folder, number, [(name, known[name]) for name in group])
               for number, group in enumerate(groups)]
    probe = {"directory": str(build), "file": str(folder / "probe.cpp"),
             "command": f"c++ -std=c++17 -c {folder / 'probe.cpp'}"}
    (folder / "compile_commands.json").write_text(json.dumps(commands + grouped + [probe]))
    check_settings(root, folder)

    def look_at(names, source, *more):
        code, said = run(tidy(folder, *more, source))
        if code != 0 and len(names) > 1 and "clang-diagnostic-error" in said:
            # Two of them do not go together: what each says by itself counts.
            results = [look_at([name], known[name]["file"]) for name in names]
            return max(one for one, _ in results), "\n".join(two for _, two in results if two)
        return code, said

    tests = r"/tests/[a-z0-9]+/[a-z0-9_]+\.(h|cpp)$"
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        # The longest first.
        jobs = [pool.submit(look_at, group, entry["file"], f"--header-filter={tests}")
                for group, entry in zip(groups, grouped)]
        jobs += [pool.submit(look_at, [name], entry["file"])
                 for name, entry in known.items() if name not in together]
        findings = [job.result() for job in jobs]
    for code, said in findings:
        if code != 0 or said.strip():
            print(said)
    failed = sum(1 for code, _ in findings if code != 0)
    print(f"clang-tidy looked at {len(known)} sources in {len(findings)} runs, {failed} failed")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
