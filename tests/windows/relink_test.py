"""Who receives PlotVue may change the Qt in it: packaging/windows builds PlotVue with a Qt that is built elsewhere, and
Qt from any sources. A small project with the files that count is Qt's sources here."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from tests.faults.files import MAY_MOUNT, MOUNTING

TOP = Path(__file__).resolve().parents[2]
FILES = TOP / "packaging/windows-files"
# A message of Qt, and one that is as long
MESSAGE, CHANGED = b"Must construct a QApplication before a QWidget", b"Must construct a QApplication before a Window!"
SOURCES = {
    "CMakeLists.txt": """
        cmake_minimum_required(VERSION 3.25)
        project(qt NONE)
        if(NOT FEATURE_accessibility OR NOT CMAKE_SYSTEM_NAME STREQUAL "Windows")
          message(FATAL_ERROR "The options or the toolchain are missing.")
        endif()
        install(FILES text.txt DESTINATION lib)
        """,
    "text.txt": "one",
    "LICENSES/LGPL-3.0-only.txt": "lesser",
    "LICENSES/GPL-3.0-only.txt": "general",
    "debian/source/format": "3.0 (native)\n",
    "debian/control": "Source: small\nMaintainer: Nobody <nobody@localhost>\n\nPackage: small\nArchitecture: all\n"
                      "Description: small\n",
    "debian/changelog": "small (1.0) unstable; urgency=low\n\n  * One.\n\n -- Nobody <nobody@localhost>  "
                        "Thu, 01 Jan 2026 00:00:00 +0000\n",
}


class Relink(unittest.TestCase):
    def setUp(self):
        self.top = Path(self.enterContext(tempfile.TemporaryDirectory(prefix="plotvue-relink-")))
        self.sources = self.top / "small-1.0"
        for name, text in SOURCES.items():
            file = self.sources / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text)
        self.cache = self.top / "cache"
        self.env = {**os.environ, "XDG_CACHE_HOME": str(self.cache)}

    def run_program(self, *command, status=0, env=None):
        done = subprocess.run([*map(str, command)], cwd=self.top, env=env or self.env, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
        self.assertEqual(done.returncode, status, done.stderr)
        self.said = done.stderr
        return done.stdout.strip()

    def packed(self, *source, **options):
        """The file to unpack, which qt-source copies with all that belongs to it."""
        return Path(self.run_program(FILES / "qt-source", self.top / "sources", *source, **options))

    def built(self, archive):
        return Path(self.run_program(FILES / "qt", archive))

    def test_a_changed_folder_of_sources_is_built(self):
        (self.sources / ".git").mkdir()
        (self.sources / ".git/config").touch()
        archive = self.packed(self.sources)
        self.assertNotIn(".git", self.run_program("tar", "--list", "--file", archive))
        bytes_of_archive = archive.read_bytes()
        first = self.built(archive)
        self.assertEqual((first / "lib/text.txt").read_text(), "one")
        self.assertEqual((first / "licences/LGPL-3.0-only.txt").read_text(), "lesser")

        (self.sources / "text.txt").touch()
        self.assertEqual(self.packed(self.sources).read_bytes(), bytes_of_archive)
        self.assertEqual(self.built(archive), first)
        self.assertEqual(self.said, "")  # nothing is built again

        (self.sources / "text.txt").write_text("two")
        second = self.built(self.packed(self.sources))
        self.assertNotEqual(second, first)
        self.assertEqual((second / "lib/text.txt").read_text(), "two")

        (first / "lib/text.txt").write_text("damaged")
        archive.write_bytes(bytes_of_archive)
        self.assertEqual(self.built(archive), first)
        self.assertEqual((first / "lib/text.txt").read_text(), "one")

    def test_an_archive_is_built(self):
        self.run_program("tar", "--create", "--gzip", "--file", "small.tar.gz", "small-1.0")
        self.assertEqual((self.built(self.packed("small.tar.gz")) / "lib/text.txt").read_text(), "one")

    def test_an_archive_without_sources_is_refused(self):
        (self.sources / "CMakeLists.txt").unlink()
        self.run_program(FILES / "qt", self.packed(self.sources), status=1)
        self.assertIn("must hold one folder", self.said)

    def test_a_source_package_is_built(self):
        self.run_program("dpkg-source", "--build", "small-1.0")
        package = self.packed("small_1.0.dsc")
        self.assertEqual({file.name for file in package.parent.iterdir()}, {"small_1.0.dsc", "small_1.0.tar.xz"})
        self.assertEqual((self.built(package) / "lib/text.txt").read_text(), "one")

    def test_the_sources_beside_the_installer_are_built_again(self):
        archive = self.packed(self.sources)
        self.assertEqual(self.packed(archive), archive)
        self.assertEqual([file.name for file in archive.parent.iterdir()], ["small-1.0.tar.xz"])
        self.assertEqual((self.built(archive) / "lib/text.txt").read_text(), "one")

    def test_debians_sources_are_kept(self):
        kept = self.cache / "plotvue-windows" / ("source-" + self.run_program(
            "dpkg-query", "-W", "-f", "${source:Version}", "qt6-base-dev"))
        kept.mkdir(parents=True)
        self.run_program("dpkg-source", "--build", "small-1.0")
        for file in self.top.glob("small_1.0.*"):
            file.rename(kept / file.name)
        (kept / "sums").write_text(self.run_program("sh", "-c", f"cd '{kept}' && sha256sum *") + "\n")
        package = self.packed()
        self.assertEqual({file.name for file in package.parent.iterdir()}, {"small_1.0.dsc", "small_1.0.tar.xz"})
        self.assertEqual(self.said, "")

        # If they are damaged, Debian is asked, which does not have them any more.
        (kept / "small_1.0.tar.xz").write_text("damaged")
        no_apt = self.top / "programs/apt-get"
        no_apt.parent.mkdir()
        no_apt.write_text("#!/bin/sh\n[ $1 = indextargets ] && echo 'http://localhost bookworm main' || exit 1\n")
        no_apt.chmod(0o755)
        self.packed(status=1, env={**self.env, "PATH": f"{no_apt.parent}:{os.environ['PATH']}"})
        self.assertIn("packaging/windows --qt-source", self.said)

    def test_plotvue_is_linked_with_a_changed_qt_without_licences(self):
        qt = self.top / "qt"
        shutil.copytree(original, qt, ignore=shutil.ignore_patterns("licences", "sums"))
        library = qt / "lib/libQt6Widgets.a"
        library.write_bytes(library.read_bytes().replace(MESSAGE, CHANGED))
        out = self.top / "windows"
        if MAY_MOUNT:  # then the objects that are there are only linked again
            built = TOP / "build/windows"
            shutil.copytree(built / "release", out / "release")
            self.run_program(*MOUNTING, 'mount --bind "$0" "$1" && mount --bind "$2" "$3" && exec "$4" "$3"',
                             out, built, qt, original, TOP / "packaging/windows")
        else:
            copy = self.top / "plotvue"
            shutil.copytree(TOP, copy, ignore=shutil.ignore_patterns("build", ".git"))
            out = copy / "build/windows"
            self.run_program(copy / "packaging/windows", qt)
        self.assertIn(CHANGED, (out / "plotvue.exe").read_bytes())
        self.assertEqual(len(list(out.glob("plotvue-*-setup.exe"))), 1)
        self.assertFalse((out / "qt-source").exists())

        self.assertIn("no folder", self.said)
        licences = out / "release/licences"
        self.assertEqual({file.name for file in licences.glob("Qt-*")},
                         {"Qt-LGPL-3.0-only.txt", "Qt-GPL-3.0-only.txt"})
        self.assertIn("come from whoever built it", (licences / "notice.txt").read_text())


if __name__ == "__main__":
    original = Path(sys.argv.pop(1))
    unittest.main(verbosity=2)
