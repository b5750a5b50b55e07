#!/usr/bin/env python3
"""Prints coverage per folder of src from gcovr's JSON summary; exits with 1 where a gate is missed."""

import json
import re
import sys
from collections import defaultdict
from pathlib import PurePosixPath

# Folder: percent of lines, percent of branches. A folder counts with everything below it.
GATES = {
    "src/rtl": (95.0, 85.0),
    "src/rtl/streams": (98.0, 95.0),
    "src/vcl": (90.0, 75.0),
}


def folders_of(filename):
    """The folders that a file counts for: src/rtl/streams/Reader.cpp counts for src/rtl and src/rtl/streams."""
    # Headers are compiled through the build tree's link to src.
    filename = re.sub(r"^build/[^/]+/include/kt/", "src/", filename)
    parents = [str(parent) for parent in PurePosixPath(filename).parents]
    return [folder for folder in parents if folder.startswith("src/")]


def percent(covered, total):
    return 100.0 if total == 0 else 100.0 * covered / total


def main():
    with open(sys.argv[1], encoding="utf-8") as summary:
        files = json.load(summary)["files"]
    if not files:
        sys.exit("coverage: no source file was measured")
    sums = defaultdict(lambda: [0, 0, 0, 0])
    for entry in files:
        counts = [entry[key] for key in ("line_covered", "line_total", "branch_covered", "branch_total")]
        for folder in folders_of(entry["filename"]):
            sums[folder] = [a + b for a, b in zip(sums[folder], counts)]

    missed = 0
    print(f"{'folder':<32} {'lines':>16} {'branches':>18}")
    for folder in sorted(sums):
        lines, all_lines, branches, all_branches = sums[folder]
        line_percent, branch_percent = percent(lines, all_lines), percent(branches, all_branches)
        gate = GATES.get(folder)
        verdict = ""
        if gate:
            fails = line_percent < gate[0] or branch_percent < gate[1]
            missed += fails
            verdict = f"{'BELOW' if fails else 'ok, at least'} {gate[0]:g} / {gate[1]:g}"
        print(
            f"{folder:<32} {line_percent:5.1f} % ({all_lines:>5}) {branch_percent:5.1f} % ({all_branches:>6})  {verdict}"
        )
    if missed:
        sys.exit(f"coverage: {missed} folder(s) below the gate")


if __name__ == "__main__":
    main()
