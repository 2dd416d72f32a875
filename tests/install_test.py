#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Pixmallow authors
# SPDX-License-Identifier: MIT
"""What is installed is complete, works where it lies, and means to the desktop what it should.

usage: install_test.py CMAKE BUILD-FOLDER [TEST...]
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CMAKE, BUILD = sys.argv[1:3]
SOURCES = pathlib.Path(__file__).resolve().parent.parent


def run(*command, **options):
    """Returns what it prints; fails with all of it when it fails."""
    finished = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, timeout=120, check=False, **options)
    if finished.returncode:
        raise AssertionError(f"{command} returned {finished.returncode}:\n{finished.stdout}")
    return finished.stdout


def cached(name):
    """A value of the build's configuration."""
    for line in (pathlib.Path(BUILD) / "CMakeCache.txt").read_text().splitlines():
        if line.startswith(name + ":"):
            return line.split("=", 1)[1]
    return ""


ID = cached("PIXMALLOW_APPLICATION_ID")


class InstallTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="pixmallow-install-")
        cls.addClassCleanup(cls.folder.cleanup)
        cls.home = pathlib.Path(cls.folder.name) / "home"
        cls.home.mkdir(mode=0o700)
        run(CMAKE, "--install", BUILD, env=dict(os.environ, DESTDIR=cls.folder.name + "/tree"))
        prefix = cached("CMAKE_INSTALL_PREFIX").lstrip("/")
        cls.tree = pathlib.Path(cls.folder.name) / "tree" / prefix

    def installed(self, pattern):
        """The one installed file that matches."""
        found = list(self.tree.glob(pattern))
        self.assertEqual(len(found), 1, f"{pattern}: {found}")
        return found[0]

    def program(self, *words):
        environment = {name: os.environ[name] for name in ("PATH", "TESSDATA_PREFIX")
                       if name in os.environ}
        return run(self.tree / "bin" / "pixmallow", *words, cwd=self.home,
                   env=dict(environment, HOME=self.home, XDG_RUNTIME_DIR=self.home, LANG="C.UTF-8"))

    def test_everything_has_its_place(self):
        for pattern in ("bin/pixmallow", "bin/pixmallow-desktop",
                        f"share/applications/{ID}.desktop",
                        f"share/dbus-1/services/{ID}.service",
                        f"share/dbus-1/interfaces/{ID}1.xml",
                        "share/icons/hicolor/scalable/apps/pixmallow.svg",
                        "share/icons/hicolor/symbolic/apps/pixmallow-symbolic.svg",
                        "share/metainfo/*.metainfo.xml", "share/man/man1/pixmallow.1.gz",
                        "share/man/man1/pixmallow-desktop.1.gz",
                        "share/bash-completion/completions/pixmallow",
                        "share/zsh/*/_pixmallow", "share/fish/vendor_completions.d/pixmallow.fish"):
            self.assertGreater(self.installed(pattern).stat().st_size, 0, pattern)

    def test_licences_of_all_that_is_shipped_come_along(self):
        text = self.installed("share/doc/*/copyright").read_text()
        for owner in ("Pixmallow authors", "Phosphor", "Microsoft", "Anton", "RapidJSON", "dlib"):
            self.assertIn(owner, text)
        self.assertNotIn("@", text.replace("authors@", ""))

    def test_the_bus_starts_what_is_installed(self):
        service = self.installed("share/dbus-1/services/*.service").read_text()
        self.assertIn(f"Name={ID}\n", service)
        program = service.split("Exec=")[1].split()[0]
        self.assertTrue(os.access(self.folder.name + "/tree" + program, os.X_OK), program)

    def test_programs_run_where_they_lie(self):
        self.assertRegex(self.program("--version"), r"^pixmallow \d+\.\d+\.\d+\n$")

    def test_a_module_is_found(self):
        if not list(self.tree.glob("lib/**/libpixmallow-text.so")):
            self.skipTest("built without text recognition")
        picture = SOURCES / "tests" / "gallery" / "golden" / "buttons-default-light.png"
        self.assertRegex(self.program("text", picture), r"\w")

    def test_the_desktop_understands_the_entry(self):
        entry = self.installed(f"share/applications/{ID}.desktop")
        self.assertIn("DBusActivatable=true", entry.read_text())
        metadata = self.installed("share/metainfo/*.metainfo.xml")
        self.assertIn(f">{ID}</dbus>", metadata.read_text())
        self.assertIn(f">{entry.name}<", metadata.read_text())
        if shutil.which("desktop-file-validate"):
            self.assertEqual(run("desktop-file-validate", entry), "")
        if shutil.which("appstreamcli"):
            run("appstreamcli", "validate", "--no-net", metadata)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
