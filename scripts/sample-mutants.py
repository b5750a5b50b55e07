#!/usr/bin/env python3
"""Changes single places of the sources at random, one at a time, and tells which changes no test notices.

A mutant is one file with one condition inverted, one comparison or logical operator exchanged, one call dropped, one
"+ 1" left out or one answer turned round. It is compiled by itself and linked before the libraries of a debug build that
is there already (./test.sh makes one), whose own copy of the file then counts for nothing. Prints the survivors as a
diff and ends with a summary; exits with 1 when fewer were killed than the gate asks for. Survivors are to be read: some
change nothing that anybody could see.

Use: scripts/sample-mutants.py GROUP [--count N] [--seed N] [--gate PERCENT]
"""

import argparse
import difflib
import json
import os
import random
import re
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "debug"
# What is changed, and the programs (with their filters) that have to notice.
GROUPS = {
    "streams": (["src/rtl/streams/*.cpp"], {"rtl_tests": "*"}),
    "collections": (["src/rtl/collections/*.cpp", "src/rtl/strings/*.cpp"], {"rtl_tests": "*"}),
    "items": (
        ["src/KTItemListEditor/Item[PRS]*.cpp"],
        {"inspector_bare_tests": "*", "inspector_tests": "Item*:-*Monkey*"},
    ),
}
GATE = 85.0
TIMEOUT = 300
RULES = [
    (re.compile(r"\bif \((?!const |auto |\w+\*? \w+ = )(?!.*;)(.*)\)( \{| return.*;| continue;| break;)?$"), r"if (!(\1))\2"),
    (re.compile(r" && "), " || "),
    (re.compile(r" \|\| "), " && "),
    (re.compile(r" == "), " != "),
    (re.compile(r" != "), " == "),
    (re.compile(r" < "), " <= "),
    (re.compile(r" <= "), " < "),
    (re.compile(r" > (?!\()"), " >= "),
    (re.compile(r" >= "), " > "),
    (re.compile(r" [+-] 1\b"), ""),
    (re.compile(r"return true;"), "return false;"),
    (re.compile(r"return false;"), "return true;"),
    (re.compile(r"^(\s+)(?!return|throw|delete|using|else|if|for)[A-Za-z_][\w.:>()-]*\(.*\);$"), r"\1;"),
]


def mutants_of(path):
    """All changes of one file: the number of the line, and what it becomes."""
    lines = path.read_text(encoding="utf-8").split("\n")
    for number, line in enumerate(lines):
        if line.lstrip().startswith(("//", "#", "Q_ASSERT", "static_assert", "template")):
            continue
        for pattern, replacement in RULES:
            for match in pattern.finditer(line):
                changed = line[: match.start()] + match.expand(replacement) + line[match.end() :]
                yield path, number, changed


def compile_command(path, out, source):
    """How the build compiles the file, or the joined one that it is a part of."""
    wanted = f'"{path}"'
    for entry in json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8")):
        unit = Path(entry["directory"], entry["file"])
        if unit == path or (unit.name.startswith("unity_") and wanted in unit.read_text(encoding="utf-8")):
            words = shlex.split(entry["command"])
            words[words.index("-o") + 1] = str(out)
            words[words.index("-c") + 1] = str(source)
            return words + ["-w"], entry["directory"]
    raise SystemExit(f"{path} is not part of {BUILD}")


def link_command(program, first, out):
    listed = subprocess.run(["ninja", "-C", BUILD, "-t", "commands", program], capture_output=True, text=True, check=True)
    command = listed.stdout.strip().split("\n")[-1].split("&&")[1].strip()
    words = shlex.split(command)
    words[words.index("-o") + 1] = str(out)
    return words[:1] + [str(first), "-Wl,--allow-multiple-definition"] + words[1:]


def survives(mutant, programs, folder):
    """None when it does not compile; else whether all tests pass."""
    path, number, changed = mutant
    lines = path.read_text(encoding="utf-8").split("\n")
    lines[number] = changed
    source, unit = folder / path.name, folder / "mutant.o"
    source.write_text("\n".join(lines), encoding="utf-8")
    command, directory = compile_command(path, unit, source)
    if subprocess.run(command, cwd=directory, capture_output=True).returncode != 0:
        return None
    for program, tests in programs.items():
        binary = folder / program
        subprocess.run(link_command(program, unit, binary), cwd=BUILD, check=True)
        try:
            result = subprocess.run(
                [binary, "--gtest_brief=1", "--gtest_fail_fast", f"--gtest_filter={tests}"],
                cwd=BUILD, capture_output=True, timeout=TIMEOUT)
        except subprocess.TimeoutExpired:
            return False
        if result.returncode != 0:
            return False
    return True


def diff_of(mutant):
    path, number, changed = mutant
    old = path.read_text(encoding="utf-8").split("\n")
    new = old[:number] + [changed] + old[number + 1 :]
    name = str(path.relative_to(ROOT))
    return "\n".join(difflib.unified_diff(old, new, name, name, n=2, lineterm=""))


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("group", choices=GROUPS)
    parser.add_argument("--count", type=int, default=40)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--gate", type=float, default=GATE)
    options = parser.parse_args()
    os.environ.update(QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8", TZ="UTC")
    patterns, programs = GROUPS[options.group]
    files = sorted(file for pattern in patterns for file in ROOT.glob(pattern))
    mutants = [mutant for file in files for mutant in mutants_of(file)]
    random.Random(options.seed).shuffle(mutants)
    killed = alive = 0
    for mutant in mutants:
        if killed + alive == options.count:
            break
        with tempfile.TemporaryDirectory() as folder:
            result = survives(mutant, programs, Path(folder))
        if result is None:
            continue
        killed += not result
        alive += result
        if result:
            print(diff_of(mutant), flush=True)
    percent = 100.0 * killed / max(killed + alive, 1)
    print(f"{options.group}: {killed} of {killed + alive} mutants killed, {percent:.0f} % (gate: {options.gate:.0f} %), "
          f"of {len(mutants)} places, seed {options.seed}")
    return 0 if percent >= options.gate else 1


if __name__ == "__main__":
    sys.exit(main())
