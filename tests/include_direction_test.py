#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
"""Lets include_direction.py judge a small tree in which every line marked WRONG is."""
import pathlib
import subprocess
import sys
import tempfile

TREE = {
    "ARCHITECTURE.md": "| seam | what |\n|---|---|\n| ui | |\n\n| folder | may include |\n|---|---|\n"
    "| base | |\n| platform | base |\n| app | * except ui |\n| ui | * |\n\n| app | * |\n",
    "src/main.cpp": '#include "ui/Menu.h"\n',
    "src/base/Clock.h": '#include <QTime>\n#include "base/Result.h"\n#include "ui/Menu.h" // WRONG\n',
    "src/app/State.cpp": '#include "platform/Displays.h"\n  # include "ui/Menu.h" // WRONG\n',
    "src/ui/Menu.cpp": '#include "app/State.h"\n#include "platform/x11/Root.h" // WRONG\n'
    '#include "Menu.h" // WRONG\n#include "Menu.moc"\n',
    "src/platform/Displays.cpp": '#include "platform/x11/Root.h" // WRONG\n'
    '#include "platform/freedesktop/Entries.h" // WRONG\n',
    "src/platform/FullPlatform.cpp": '#include "platform/x11/Root.h"\n#include "platform/fake/Fake.h"\n',
    "src/platform/x11/Root.cpp": '#include "platform/x11/Root.h"\n#include "platform/Displays.h"\n'
    '#include "platform/freedesktop/Entries.h"\n#include "platform/wayland/Portal.h" // WRONG\n',
    "src/attic/Old.h": '#include "base/Clock.h" // WRONG\n',
}

with tempfile.TemporaryDirectory() as folder:
    expected = []
    for name, text in TREE.items():
        path = pathlib.Path(folder, name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        lines = enumerate(text.splitlines(), 1)
        expected += [f"{name}:{number}" for number, line in lines if "WRONG" in line]
    script = pathlib.Path(__file__).with_name("include_direction.py")
    run = subprocess.run([sys.executable, script, folder], stderr=subprocess.PIPE, text=True)
    found = [line.split(": ")[0] for line in run.stderr.splitlines()]
    if run.returncode != 1 or sorted(found) != sorted(expected):
        sys.exit(f"exit code {run.returncode}, expected:\n{sorted(expected)}\nfound:\n{run.stderr}")
