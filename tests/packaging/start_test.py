"""The installed program on a real display: from the menu it keeps its scratch files to itself."""

import os
import sys
import unittest
from pathlib import Path

from tests.display.display import SAMPLES, Display, ended, soon

VENDORS = (SAMPLES / "vendors.txt").read_bytes()
SCRATCH = "pvuscrn.txt"


def menu_command():
    """What the installed menu entry starts, where the package is unpacked."""
    [entry] = root.glob("usr/share/applications/*.desktop")
    [command] = [line for line in entry.read_text().splitlines() if line.startswith("Exec=")]
    return root / command.removeprefix("Exec=/")


class Start(unittest.TestCase):
    def setUp(self):
        self.display = Display(menu_command())
        self.display.__enter__()
        self.addCleanup(self.display.__exit__)
        self.home = self.display.home
        self.runtime = self.home / "run"
        self.runtime.mkdir(mode=0o700)
        self.display.env["XDG_RUNTIME_DIR"] = str(self.runtime)
        self.display.copy(VENDORS)

    def scratch_files(self, count):
        def find():
            return sorted(self.home.rglob(SCRATCH))
        return soon(f"{count} starts have read the capture", lambda: len(find()) == count and find())

    def test_from_the_menu_every_start_has_a_private_directory_until_it_ends(self):
        programs = [self.display.start(), self.display.start()]
        for file in self.scratch_files(2):
            self.assertEqual(file.parent.parent, self.runtime)
            self.assertEqual(os.stat(file.parent).st_mode & 0o777, 0o700)
        for program in programs:
            program.terminate()
            ended(program)
        self.assertEqual(list(self.runtime.iterdir()), [])

    def test_a_file_that_is_dropped_on_the_menu_entry_is_not_passed_on(self):
        self.display.launch(menu_command(), str(SAMPLES / "product.txt"))
        self.display.window("PlotVue")

    def test_leaving_the_program_removes_the_directory_too(self):
        program = self.display.start()
        self.scratch_files(1)
        self.display.window("PlotVue")
        self.display.key("Escape")
        self.display.window("Plot Vue!")
        self.display.key("Escape")
        self.assertEqual(ended(program), 0)
        self.assertEqual(list(self.runtime.iterdir()), [])

    def test_without_a_runtime_directory_the_cache_takes_its_place(self):
        self.display.env["XDG_RUNTIME_DIR"] = str(self.home / "none")
        self.display.start()
        [file] = self.scratch_files(1)
        self.assertEqual(file.parent.parent, self.home / ".cache")

    def test_from_a_shell_the_current_directory_stays(self):
        self.display.launch(root / "usr/bin/plotvue")
        self.assertEqual(self.scratch_files(1), [self.home / SCRATCH])


if __name__ == "__main__":
    root = Path(sys.argv.pop())
    unittest.main()
