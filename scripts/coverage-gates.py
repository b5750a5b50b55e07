#!/usr/bin/env python3
"""Prints coverage per folder of src from gcovr's JSON summary, and the files that lack most; exits with 1 where a gate
is missed."""

import json
import re
import sys
from collections import defaultdict
from pathlib import PurePosixPath

# Folder: percent of lines, percent of branches. A folder counts with everything below it.
GATES = {
    "src/rtl": (95.0, 85.0),
    "the stream parsers": (98.0, 95.0),
    "src/vcl": (90.0, 75.0),
    "the product": (90.0, 80.0),
}
# What reads bytes that nobody vouches for. The other files of the folder put values into objects, and have many casts and
# asserts, each a branch of which one side cannot be.
PARSERS = re.compile(
    r"src/rtl/streams/(Binary(FormParser|Format|Reader)|ByteSource|Form(Conversion|Numbers|Path)|Text(Encoding|Lexer|Parser))\.")
KEYS = ("line_covered", "line_total", "branch_covered", "branch_total")
WORST_FILES = 15


def source_of(filename):
    """Headers are compiled through the build tree's link to src."""
    return re.sub(r"^build/[^/]+/include/kt/", "src/", filename)


def folders_of(source):
    """What a file counts for: src/rtl/streams/Reader.cpp counts for src/rtl and src/rtl/streams."""
    folders = [str(parent) for parent in PurePosixPath(source).parents if str(parent).startswith("src/")]
    if re.match(r"src/(KT|ktcommon)", source):
        folders.append("the product")
    if PARSERS.match(source):
        folders.append("the stream parsers")
    return folders


def percent(covered, total):
    return 100.0 if total == 0 else 100.0 * covered / total


def row(name, counts, verdict=""):
    lines, all_lines, branches, all_branches = counts
    line_percent, branch_percent = percent(lines, all_lines), percent(branches, all_branches)
    return f"{name:<44} {line_percent:5.1f} % ({all_lines:>5}) {branch_percent:5.1f} % ({all_branches:>6})  {verdict}".rstrip()


def is_below(gate, counts):
    return percent(*counts[:2]) < gate[0] or percent(*counts[2:]) < gate[1]


def sums_of(entries, names_of):
    sums = defaultdict(lambda: [0, 0, 0, 0])
    for entry in entries:
        for name in names_of(source_of(entry["filename"])):
            sums[name] = [a + entry[key] for a, key in zip(sums[name], KEYS)]
    return sums


def print_folders(folders):
    """Answers how many are below their gate."""
    missed = 0
    print(f"{'folder':<44} {'lines':>15} {'branches':>17}")
    for name in sorted(folders):
        gate = GATES.get(name)
        fails = gate is not None and is_below(gate, folders[name])
        missed += fails
        verdict = f"{'BELOW' if fails else 'ok, at least'} {gate[0]:g} / {gate[1]:g}" if gate else ""
        print(row(name, folders[name], verdict))
    return missed


def print_worst(files):
    def lacking(item):
        lines, all_lines, branches, all_branches = item[1]
        return (all_lines - lines) + (all_branches - branches)

    print(f"\n{'files that lack most':<44} {'lines':>15} {'branches':>17}")
    for name, counts in sorted(files.items(), key=lacking, reverse=True)[:WORST_FILES]:
        print(row(name, counts))


def main():
    with open(sys.argv[1], encoding="utf-8") as summary:
        entries = json.load(summary)["files"]
    if not entries:
        sys.exit("coverage: no source file was measured")
    missed = print_folders(sums_of(entries, folders_of))
    print_worst(sums_of(entries, lambda source: [source]))
    absent = [name for name in GATES if name not in sums_of(entries, folders_of)]
    if absent:
        sys.exit(f"coverage: nothing was measured of {', '.join(absent)}")
    if missed:
        sys.exit(f"coverage: {missed} folder(s) below the gate")


if __name__ == "__main__":
    main()
