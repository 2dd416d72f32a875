#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
"""Fails on every include in src/ that the table in ARCHITECTURE.md does not grant, with file and line.

usage: include_direction.py [ROOT]
"""
import pathlib
import re
import sys

SHARED_BY_BACK_ENDS = "freedesktop"


def read_table(text):
    """The folders that each folder may include, itself among them."""
    rows = re.search(r"^\| folder \| may include \|\n\|[-|]+\n((?:\|.*\n)+)", text, re.M)[1]
    cells = [[cell.strip() for cell in row.strip("|").split("|")] for row in rows.splitlines()]
    every = {folder for folder, _ in cells}
    granted = {}
    for folder, may in cells:
        named, _, but = may.partition(" except ")
        granted[folder] = (every if named == "*" else set(named.split())) - set(but.split()) | {folder}
    return granted


def back_end_of(path):
    """The folder under platform/ that a path from src/ lies in, or None."""
    return path.parts[1] if path.parts[0] == "platform" and len(path.parts) > 2 else None


def objection(granted, here, there):
    """Why the file may not include the other one, both as paths from src/; None if it may."""
    folder, other = here.parts[0], there.parts[0]
    if here.parts == ("main.cpp",):
        return None
    if folder not in granted:
        return f"the table in ARCHITECTURE.md has no row for {folder}"
    if other not in granted:
        return f"{there} is not a path from src/ into a folder of the table"
    if other not in granted[folder]:
        return f"{folder} may not include {other}"
    own, asked = back_end_of(here), back_end_of(there)
    if asked in (None, own) or here.match("platform/*Platform.cpp"):
        return None
    if asked == SHARED_BY_BACK_ENDS and own:
        return None
    return f"platform/{asked} is for its own files and the factory"


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[1])
    granted = read_table((root / "ARCHITECTURE.md").read_text())
    source = root / "src"
    wrong = []
    for file in sorted(source.rglob("*.[ch]*")):
        for number, line in enumerate(file.read_text().splitlines(), 1):
            include = re.match(r'\s*#\s*include\s*"([^"]+)"', line)
            if include and not include[1].endswith(".moc"):
                here, there = file.relative_to(source), pathlib.PurePosixPath(include[1])
                if why := objection(granted, here, there):
                    wrong.append(f"src/{here}:{number}: {why}")
    sys.exit("\n".join(wrong) or 0)


main()
