#!/usr/bin/env python3
"""Prints the covered lines of each folder of a build with --coverage: coverage_table.py BUILD_FOLDER."""

import collections
import json
import os
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDERS = ("src", "host", "tool")
ROW = "{:<28} {:>7} {:>7} {:>8}"


def line_counts(build):
    """How often each line of our own sources ran, over all objects that hold it: {file: {line: count}}."""
    counts = collections.defaultdict(collections.Counter)
    # Of an object that never ran there are notes without counts; its lines count as well.
    for notes in sorted(Path(build).rglob("*.gcno")):
        report = subprocess.run(
            ["gcov", "--json-format", "--stdout", notes], check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL
        ).stdout
        for text in report.splitlines():
            for file in json.loads(text)["files"]:
                path = os.path.relpath(os.path.join(build, file["file"]), ROOT)
                if path.split(os.sep)[0] in FOLDERS:
                    for line in file["lines"]:
                        counts[path][line["line_number"]] += line["count"]
    return counts


def main():
    folders = collections.defaultdict(lambda: [0, 0])
    for path, lines in line_counts(sys.argv[1]).items():
        ran = sum(count > 0 for count in lines.values())
        for name in (os.path.dirname(path), "all"):
            folders[name][0] += len(lines)
            folders[name][1] += ran
    if not folders:
        sys.exit("coverage_table: no counts in " + sys.argv[1])
    print(ROW.format("folder", "lines", "ran", "share"))
    for name in sorted(folders, key=lambda name: (name == "all", name)):
        lines, ran = folders[name]
        print(ROW.format(name, lines, ran, f"{ran / lines:.1%}"))


main()
