#!/usr/bin/env python3
"""Checks the drawn pictures of the documentation.

Each picture in docs/pictures is drawn from the text beside it, and shows all its arrows. The picture of the layers agrees
with the table in cmake/Layers.cmake: every arrow is allowed there, and every allowed layer can be reached.
"""

import html
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PICTURES = ROOT / "docs" / "pictures"

ARROW = re.compile(r'^\s*"?([\w/-]+)"?\s*->\s*"?([\w/-]+)"?', re.MULTILINE)
TITLE = re.compile(r"<title>([^<]*)</title>")
ROW = re.compile(r'^set\(QUORVEX_LAYER_([\w/]+) (?:""|([\w/ ]*))\)', re.MULTILINE)


def arrows_of_text(source):
    return set(ARROW.findall(source.read_text(encoding="utf-8")))


def arrows_of_picture(picture):
    titles = (html.unescape(title) for title in TITLE.findall(picture.read_text(encoding="utf-8")))
    return {tuple(title.split("->")) for title in titles if "->" in title}


def reachable(arrows, start):
    found = set()
    pending = [start]
    while pending:
        lower = {to for at, to in arrows if at == pending[-1]} - found
        pending.pop()
        found |= lower
        pending.extend(lower)
    return found


def main():
    problems = []
    sources = sorted(PICTURES.glob("*.dot"))
    for source in sources:
        if arrows_of_text(source) != arrows_of_picture(source.with_suffix(".svg")):
            problems.append(f"{source.name} is not what its picture shows: draw it again")

    table = {layer: set((allowed or "").split()) for layer, allowed in ROW.findall((ROOT / "cmake" / "Layers.cmake").read_text())}
    arrows = arrows_of_text(PICTURES / "layers.dot")
    between = {(at, to) for at, to in arrows if at in table}
    for at, to in sorted(between):
        if to not in table[at]:
            problems.append(f"layers.dot draws {at} -> {to}, which cmake/Layers.cmake does not allow")
    for layer, allowed in table.items():
        for missing in sorted(allowed - reachable(between, layer)):
            problems.append(f"layers.dot does not show that {layer} may include {missing}")
    for missing in sorted(set(table) - {layer for arrow in arrows for layer in arrow}):
        problems.append(f"layers.dot does not have the layer {missing}")

    for problem in problems:
        print(problem, file=sys.stderr)
    if not sources or not table or not between:
        print("no pictures or no layers found", file=sys.stderr)
        return 1
    if not problems:
        print(f"{len(sources)} pictures show what their texts say, and the layers are those of the build.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
