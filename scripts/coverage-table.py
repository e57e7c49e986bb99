#!/usr/bin/env python3
"""Prints the lines covered of each layer, and the files with too many uncovered lines: coverage-table.py COUNTS EXCEPTIONS

COUNTS is gcovr's JSON. EXCEPTIONS has a line for each file that stays below the limit, with the reason: it is printed
beside the file and changes no number. An exception for a file that is not below the limit is refused.
"""

import json
import sys
from pathlib import Path

LIMIT = 95.0
CHECKED = ["model", "platform", "engine", "services", "jobs", "certificate", "cli"]
SHOWN = [*CHECKED, "ui"]


def lines_of(path):
    """The executable lines of each file, with the number of times each ran."""
    files = {}
    for entry in json.loads(Path(path).read_text(encoding="utf-8"))["files"]:
        counts = files.setdefault(entry["file"], {})
        for line in entry["lines"]:
            if not line.get("gcovr/noncode"):
                number = line["line_number"]
                counts[number] = counts.get(number, 0) + line["count"]
    return {name: counts for name, counts in files.items() if counts}


def reasons_of(path):
    reasons = {}
    for line in Path(path).read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            name, _, reason = line.partition(" ")
            if not reason.strip() or name in reasons:
                sys.exit(f"error: {path}: one file and one reason in a line, not: {line}")
            reasons[name] = reason.strip()
    return reasons


def layer_of(name):
    return Path(name).parts[1]


def share(counts):
    return 100.0 * sum(1 for count in counts.values() if count > 0) / len(counts)


def ranges(numbers):
    """1, 2, 3, 7 becomes "1-3, 7"."""
    parts = []
    for number in sorted(numbers):
        if parts and number == parts[-1][1] + 1:
            parts[-1][1] = number
        else:
            parts.append([number, number])
    return ", ".join(f"{first}" if first == last else f"{first}-{last}" for first, last in parts)


def print_layers(files):
    """Returns the layers below the limit."""
    low = []
    print(f"\n{'layer':<14}{'files':>6}{'lines':>8}{'covered':>9}{'percent':>10}")
    for layer in SHOWN:
        parts = [counts for name, counts in files.items() if layer_of(name) == layer]
        if not parts:
            sys.exit(f"error: nothing was counted below src/{layer}")
        total = sum(len(counts) for counts in parts)
        covered = sum(1 for counts in parts for count in counts.values() if count > 0)
        percent = 100.0 * covered / total
        note = "" if layer in CHECKED else "   for information"
        print(f"{layer:<14}{len(parts):>6}{total:>8}{covered:>9}{percent:>10.2f}{note}")
        if layer in CHECKED and percent < LIMIT:
            low.append(f"{layer} {percent:.2f}")
    return low


def print_files(files, reasons):
    print(f"\nFiles below {LIMIT:g} percent, with the lines that did not run:")
    for name in sorted(files, key=lambda name: (layer_of(name) not in CHECKED, name)):
        if share(files[name]) < LIMIT:
            missing = [number for number, count in files[name].items() if count == 0]
            print(f"  {name} {share(files[name]):.1f}: {ranges(missing)}")
            if name in reasons:
                print(f"      {reasons[name]}")


def main():
    files = lines_of(sys.argv[1])
    reasons = reasons_of(sys.argv[2])
    low = print_layers(files)
    print_files(files, reasons)
    problems = [f"below {LIMIT:g} percent: {layer}" for layer in low]
    problems += [
        f"{sys.argv[2]} excuses {name}, which is not below {LIMIT:g} percent"
        for name in sorted(reasons)
        if name not in files or share(files[name]) >= LIMIT
    ]
    for problem in problems:
        print(f"error: {problem}", file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
