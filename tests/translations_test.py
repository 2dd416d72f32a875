#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
"""Every text of the sources is translated into every language that there is, and no translation
loses what the program puts into it.

translations_test.py LUPDATE
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
ADVICE = "Run './dev translations', then translate what is unfinished."

# A parser that knows no headers of the standard library complains about its namespace.
HARMLESS = re.compile(r"unknown namespace/class ::std$")

# What a translation must have as often as its source does.
KEPT = [
    ("placeholders", re.compile(r"%(?:L?[0-9]|L?n)")),
    ("keys in brackets", re.compile(r"\([A-Z]\)")),
    ("accelerators", re.compile(r"&(?=\w)")),
    ("ellipses", re.compile("…|\\.\\.\\.")),
    ("blanks around it", re.compile(r"^\s+|\s+$")),
    ("commands", re.compile(r"--[a-z]+|[A-Z]+_[A-Z_]+")),
]

# Quotation marks as English has them are a sign of something copied.
FOREIGN = {"de": re.compile("\"|”|'|“[^“„]*”")}


def gather(lupdate, file):
    """Brings the file up to date with the sources and returns what the parser complained of."""
    outcome = subprocess.run(
        [lupdate, "-locations", "none", ROOT / "src", "-I", ROOT / "src", "-ts", file],
        check=True, capture_output=True, text=True)
    lines = outcome.stderr.splitlines()
    return [line for line in lines if line.startswith("/") and not HARMLESS.search(line)]


def translations_of(message):
    node = message.find("translation")
    return [form.text or "" for form in node.findall("numerusform")] or [node.text or ""]


def faults_of(message, language):
    source = message.find("source").text
    state = message.find("translation").get("type")
    if state in ("vanished", "obsolete"):
        return ["is in no source any more. " + ADVICE]
    if state == "unfinished":
        return ["is not translated. " + ADVICE]
    faults = []
    for text in translations_of(message):
        if not text:
            faults.append("has an empty translation")
        for name, pattern in KEPT:
            if sorted(pattern.findall(source)) != sorted(pattern.findall(text)):
                faults.append(f"has other {name} in “{text}”")
        if language in FOREIGN and FOREIGN[language].search(text):
            faults.append(f"has foreign quotation marks in “{text}”")
    return faults


def examine(lupdate, file):
    language = file.stem.split("_", 1)[1]
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder) / file.name
        shutil.copy(file, copy)
        faults = gather(lupdate, copy)
        for context in ElementTree.parse(copy).getroot().iter("context"):
            for message in context.findall("message"):
                where = f"{file.name}: {context.find('name').text}: “{message.find('source').text}”"
                faults += [f"{where} {fault}" for fault in faults_of(message, language)]
    return faults


def main():
    files = sorted((ROOT / "translations").glob("*.ts"))
    assert files, "There are no translations."
    faults = [fault for file in files for fault in examine(sys.argv[1], file)]
    print("\n".join(faults))
    sys.exit(1 if faults else 0)


main()
