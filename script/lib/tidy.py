"""Runs clang-tidy over every source of a build, and says so when it could not.

tidy.py ROOT BUILD: ROOT as the checkout, BUILD with compile_commands.json and all that is generated.

Reading Qt's headers and matching what is in them takes nine tenths of the time, so sources are looked
at a dozen at once: those that declare nothing twice one after the other, test programs, which nothing
else includes, each in a namespace of its own. Where a dozen does not go together after all, each of
them is looked at alone.
"""

import concurrent.futures
import dataclasses
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

AT_ONCE = 12
# What a build of this system never compiles; anything else that it leaves out is an error.
ELSEWHERE = re.compile(r"_windows\.cpp$|^packaging/|^tests/support/trialmachine\.cpp$"
                       r"|^tests/e2e/tst_(registry|session|taskbar)\.cpp$")
TEST = re.compile(r"^tests/(unit|gui|e2e)/tst_\w+\.cpp$")
# Of the sources of a group as of headers, without what is generated.
LOOKED_AT = r"/(app|bench|colorpicker|companion|examples|fuzz|lighting|system|tests|ui)" \
            r"/([a-z0-9]+/)*[a-z0-9_]+\.(h|cpp)$"
NOT_IN_NAMESPACE = re.compile(r"Q_DECLARE_METATYPE|(?<![\w>])::\w")
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
        elif word in ("-isystem", "-include"):
            kept.append(word + words[index + 1])  # one word, so that it stays together
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


@dataclasses.dataclass
class Source:
    name: str  # in the checkout
    path: str
    folder: str
    words: list  # of the compiler
    text: str
    in_namespace: bool

    def includes(self):
        return [line for line in re.findall(r"^#include .*$", self.text, re.M)
                if ".moc" not in line]

    def declared(self):
        """By name, what it and another may both declare, and what is defined for it alone."""
        names = set(re.findall(r"^(?![\s/#}]|namespace|using)[^\n(={;]*?\b([A-Za-z]\w*)\s*[(={;[]",
                               self.text, re.M))
        if re.search(r"^QTEST_\w*MAIN", self.text, re.M):
            names.add("main")
        own = {} if self.in_namespace else dict.fromkeys(names, self.name)
        return own | {word.split("=")[0]: word for word in self.words if word.startswith("-D")}


def read_source(name, entry):
    text = pathlib.Path(entry["file"]).read_text()
    return Source(name, entry["file"], entry["directory"], arguments(entry), text,
                  bool(TEST.match(name)) and not NOT_IN_NAMESPACE.search(text))


def grouped(sources):
    """The sources, a dozen in a group: those that go into namespaces apart from the others."""
    groups = []
    for source in sources:
        declared = source.declared()
        for group, taken in groups:
            if len(group) < AT_ONCE and group[0].in_namespace == source.in_namespace \
                    and all(taken.get(name, what) == what for name, what in declared.items()):
                group.append(source)
                taken |= declared
                break
        else:
            groups.append(([source], declared))
    return [group for group, _ in groups]


def write_group(folder, number, group):
    """A source that includes those of the group, and its command."""
    includes, bodies, words = [], [], []
    for source in group:
        includes += [line for line in source.includes() if line not in includes]
        body = f'#include "{source.path}"\n'
        bodies.append(f"namespace {pathlib.Path(source.name).stem} {{\n{body}}}\n"
                      if source.in_namespace else body)
        # Its own folder, for what it includes from there.
        words += [word for word in [*source.words, f"-iquote{pathlib.Path(source.path).parent}"]
                  if word not in words]
    # Those of the project come first, so that one which lacks an include is still seen.
    includes.sort(key=lambda line: '"' not in line)
    path = folder / f"group_{number}.cpp"
    path.write_text("\n".join(includes + bodies))
    return command(group[0].folder, str(path), words)


def command(folder, path, words):
    return {"directory": folder, "file": path, "command": shlex.join([*words, "-c", path])}


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
    known = [read_source(name, entries[name]) for name in sources if name in entries]
    groups = grouped(known)
    commands = [command(source.folder, source.path, source.words) for source in known]
    together = [write_group(folder, number, group) for number, group in enumerate(groups)]
    probe = command(str(build), str(folder / "probe.cpp"), ["c++", "-std=c++17"])
    (folder / "compile_commands.json").write_text(json.dumps(commands + together + [probe]))
    check_settings(root, folder)

    def look_at(group, path):
        if len(group) == 1:
            return run(tidy(folder, group[0].path))
        code, said = run(tidy(folder, f"--header-filter={LOOKED_AT}",
                              "--checks=-bugprone-suspicious-include", path))
        if "clang-diagnostic-error" in said:
            results = [look_at([source], None) for source in group]
            names = " ".join(source.name for source in group)
            return (max(one for one, _ in results),
                    "\n".join([f"do not go together: {names}", *(two for _, two in results if two)]))
        return code, said

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        findings = list(pool.map(look_at, groups, [entry["file"] for entry in together]))
    for code, said in findings:
        if code != 0 or said.strip():
            print(said)
    failed = sum(1 for code, _ in findings if code != 0)
    print(f"clang-tidy looked at {len(known)} sources in {len(findings)} runs, {failed} failed")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
