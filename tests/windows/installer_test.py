"""The installer: in without a question, started from the menu's entry, two at once, out again, and nothing is left."""

import shutil
import sys
import time
import unittest
from pathlib import Path

from tests.display.display import NotInTime, soon
from tests.display.wine import WineTest

LISTED = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\PlotVue"
PROGRAM = "plotvue.exe"


class Installer(WineTest):
    def setUp(self):
        super().setUp()
        self.addCleanup(self.display.launch, "wine", "taskkill", "/f", "/im", PROGRAM)
        self.drive = Path(self.display.env["WINEPREFIX"], "drive_c")
        (self.user,) = (folder for folder in (self.drive / "users").iterdir() if folder.name != "Public")
        self.local = self.user / "AppData/Local"
        self.installed = self.local / "Programs/PlotVue"
        self.starts = self.local / "PlotVue"
        self.display.windows_program("cmd", "/c", "exit")  # whatever Wine lays down with its first program
        self.before = self.files()

    def files(self):
        """All but the uninstaller's copy of itself, which it cannot delete as long as it runs."""
        return sorted(path for path in self.user.rglob("*") if "~nsu" not in str(path))

    def listed(self):
        names = self.display.windows_program("reg", "query", LISTED.rpartition("\\")[0]).decode().split()
        return any(name.endswith(r"\Uninstall\PlotVue") for name in names)

    def install(self):
        self.display.windows_program(setup, "/S")
        self.assertTrue((self.installed / PROGRAM).is_file())

    def remove(self):
        def gone():  # a copy of it goes on by itself; it refuses while PlotVue is still ending
            if (self.installed / "uninstall.exe").exists():
                self.display.windows_program(self.installed / "uninstall.exe", "/S")
                time.sleep(2)
            return not self.installed.exists()
        soon("the program goes", gone, 40)

    def from_menu(self):
        """Starts it as the start menu does; returns its folder, which is new."""
        before = self.working()
        self.start_entry()
        folder = soon("a start has its folder", lambda: self.working() - before).pop()
        soon("a window comes", self.display.windows)
        return folder

    def start_entry(self):
        (entry,) = self.user.rglob("Start Menu/Programs/PlotVue.lnk")
        self.display.windows_program("start", "/unix", entry)

    def working(self):
        return {path for path in self.starts.glob("*") if path.is_dir()}

    def leave(self):
        """Esc closes the box that needs data, and leaves the start-up window."""
        def over():
            if self.display.windows():
                self.display.key("Escape")
            return not self.working()
        soon("every PlotVue ends, and its folder goes", over)

    def test_the_program_and_the_installer_are_small(self):
        self.assertLess(Path(program).stat().st_size, 21_000_000)
        self.assertLess(Path(setup).stat().st_size, 8_000_000)

    def test_a_user_installs_starts_and_removes_it(self):
        self.install()
        self.assertTrue(self.listed())
        self.assertTrue((self.installed / "licences/notice.txt").is_file())

        one = self.from_menu()
        two = self.from_menu()
        self.assertNotEqual(one, two)
        with self.assertRaises(NotInTime, msg="what runs is not removed"):
            self.display.windows_program(self.installed / "uninstall.exe", "/S")
            soon("the program goes", lambda: not (self.installed / PROGRAM).exists(), 3)
        self.leave()
        soon("nothing of the folders is left", lambda: not self.starts.exists())

        self.remove()
        self.assertFalse(self.listed())
        self.assertEqual(self.files(), self.before)

    def test_what_a_crash_left_is_swept_at_the_next_start(self):
        self.install()
        left = self.from_menu()
        (left / "plotvue.txt").write_text("left")
        self.display.windows_program("taskkill", "/f", "/im", PROGRAM)
        soon("it is gone", lambda: not self.display.windows())
        self.assertTrue(left.is_dir())
        (self.starts / "other").mkdir()
        self.start_entry()
        soon("the folders are swept",
             lambda: not (self.starts / "other").exists() and not (left / "plotvue.txt").exists())
        soon("a window comes", self.display.windows)
        self.assertEqual(len(self.working()), 1)
        self.leave()
        self.remove()

    def test_started_by_hand_it_works_where_it_is_started(self):
        shutil.copy(program, self.display.home / PROGRAM)
        process = self.display.start(PROGRAM)
        soon("a window comes", self.display.windows)
        time.sleep(1)
        self.assertFalse(self.starts.exists())
        process.kill()
        process.wait()


if __name__ == "__main__":
    program, setup = sys.argv[1:3]
    del sys.argv[1:]
    unittest.main(verbosity=2)
