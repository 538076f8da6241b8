"""What the tests of the installer share: the copies of PlotVue that it installs, and a Windows drive that each test
leaves as it was."""

import shutil
import subprocess
import sys
import unittest
from pathlib import Path

from tests.display.display import soon
from tests.display.wine import WineTest

ENTRY = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\PlotVue"
PROGRAM, UNINSTALLER, TEXT = "plotvue.exe", "uninstall.exe", "licences/notice.txt"
DONE, CANCELLED, FAILED, RUNNING, NO_RIGHTS = range(5)  # exit codes


class Copy:
    """An installed PlotVue: a user's own, or that of all users."""

    def __init__(self, display, folder, menu, root):
        self.display, self.folder, self.root = display, folder, root
        self.entry = menu / "PlotVue.lnk"
        self.uninstaller = folder / UNINSTALLER

    def listed(self, value="InstallLocation"):
        """A value of the entry in the system's list of programs; nothing if it is not listed."""
        found = subprocess.run(["wine", "reg", "query", rf"{self.root}\{ENTRY}", "/v", value], env=self.display.env,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=60, check=False).stdout
        return found.decode().partition("REG_SZ")[2].strip()

    def there(self):
        """Whether it can be used; an installation is there whole or not at all."""
        parts = {(self.folder / PROGRAM).is_file(), self.entry.is_file(), bool(self.listed())}
        if len(parts) != 1:
            raise AssertionError(f"{self.folder} is there in part")
        return parts.pop()

    def contents(self):
        return {str(path.relative_to(self.folder)): path.read_bytes() if path.is_file() else None
                for path in self.folder.rglob("*")}

    def make_old(self):
        """Looks as if an older version were installed: all files are different, and there is one more."""
        for file in (PROGRAM, UNINSTALLER, TEXT, "licences/old.txt"):
            (self.folder / file).write_text("old")
        self.display.windows_program("reg", "add", rf"{self.root}\{ENTRY}", "/v", "DisplayVersion", "/d", "1.0", "/f")


class InstallerTest(WineTest):
    shared = True
    setup = limited = holder = None  # programs

    def setUp(self):
        super().setUp()
        self.drive = Path(self.display.env["WINEPREFIX"], "drive_c")
        (self.user,) = (folder for folder in (self.drive / "users").iterdir() if folder.name != "Public")
        self.starts = self.user / "AppData/Local/PlotVue"
        self.programs = self.user / "AppData/Local/Programs"
        menu = "Microsoft/Windows/Start Menu/Programs"
        self.own = Copy(self.display, self.programs / "PlotVue", self.user / "AppData/Roaming" / menu, "HKCU")
        self.all = Copy(self.display, self.drive / "Program Files/PlotVue", self.drive / "ProgramData" / menu, "HKLM")
        self.display.windows_program("cmd", "/c", "exit")  # whatever Wine lays down with its first program
        self.before = self.files()
        self.addCleanup(self.clean)

    def clean(self):
        """Whatever a test that fails has left."""
        self.kill()
        for copy in (self.own, self.all):
            self.status("reg", "delete", rf"{copy.root}\{ENTRY}", "/f")
            copy.entry.unlink(missing_ok=True)
            shutil.rmtree(copy.folder, ignore_errors=True)
        for folder in (self.starts, self.programs, self.drive / "moved", self.drive / "other"):
            shutil.rmtree(folder, ignore_errors=True)

    def files(self):
        return sorted(path for path in self.drive.rglob("*") if "windows" not in path.parts)

    def status(self, *command):
        """The exit code of a Windows program."""
        return subprocess.run(["wine", *map(str, command)], cwd=self.display.home, env=self.display.env, timeout=60,
                              stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              check=False).returncode

    def install(self, *options, status=DONE):
        self.assertEqual(self.status(self.setup, "/S", *options), status)

    def from_menu(self, copy):
        """Starts it as the start menu does; returns its folder, which is new."""
        before = self.working()
        self.start_entry(copy)
        folder = soon("a start has its folder", lambda: self.working() - before).pop()
        soon("a window comes", self.display.windows)
        return folder

    def start_entry(self, copy):
        self.display.windows_program("start", "/unix", copy.entry)

    def working(self):
        """The folders in which a PlotVue works."""
        return {path for path in self.starts.glob("*") if path.is_dir()}

    def kill(self):
        self.status("taskkill", "/f", "/im", PROGRAM)
        soon("no PlotVue runs", lambda: PROGRAM.encode() not in self.display.windows_program("tasklist"))


def main():
    """Runs the tests of the file that is run; its arguments are the programs."""
    InstallerTest.program, InstallerTest.setup, InstallerTest.limited, InstallerTest.holder = sys.argv[1:]
    del sys.argv[1:]
    unittest.main(verbosity=2)
