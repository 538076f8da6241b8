"""The installed program on a real display: from the menu it keeps its scratch files to itself."""

import os
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "e2e"))
from desktop import SAMPLES, Desktop, ended, soon

VENDORS = (SAMPLES / "vendors.txt").read_bytes()
SCRATCH = "pvuscrn.txt"


def menu_command():
    """What the installed desktop entry starts, where the package is unpacked."""
    [entry] = root.glob("usr/share/applications/*.desktop")
    [command] = [line for line in entry.read_text().splitlines() if line.startswith("Exec=")]
    return root / command.removeprefix("Exec=/")


class Start(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(menu_command())
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__)
        self.home = self.desktop.home
        self.runtime = self.home / "run"
        self.runtime.mkdir(mode=0o700)
        self.desktop.env["XDG_RUNTIME_DIR"] = str(self.runtime)
        self.desktop.copy(VENDORS)

    def scratch_files(self, count):
        find = lambda: sorted(self.home.rglob(SCRATCH))
        return soon(f"{count} starts have read the capture", lambda: len(find()) == count and find())

    def test_from_the_menu_every_start_has_a_private_directory_until_it_ends(self):
        programs = [self.desktop.start(), self.desktop.start()]
        for file in self.scratch_files(2):
            self.assertEqual(file.parent.parent, self.runtime)
            self.assertEqual(os.stat(file.parent).st_mode & 0o777, 0o700)
        for program in programs:
            program.terminate()
            ended(program)
        self.assertEqual(list(self.runtime.iterdir()), [])

    def test_a_file_that_is_dropped_on_the_menu_entry_is_not_passed_on(self):
        self.desktop.launch(menu_command(), str(SAMPLES / "product.txt"))
        self.desktop.window("PlotVue")

    def test_leaving_the_program_removes_the_directory_too(self):
        program = self.desktop.start()
        self.scratch_files(1)
        self.desktop.window("PlotVue")
        self.desktop.key("Escape")
        self.desktop.window("Plot Vue!")
        self.desktop.key("Escape")
        self.assertEqual(ended(program), 0)
        self.assertEqual(list(self.runtime.iterdir()), [])

    def test_without_a_runtime_directory_the_cache_takes_its_place(self):
        self.desktop.env["XDG_RUNTIME_DIR"] = str(self.home / "none")
        self.desktop.start()
        [file] = self.scratch_files(1)
        self.assertEqual(file.parent.parent, self.home / ".cache")

    def test_from_a_shell_the_current_directory_stays(self):
        self.desktop.launch(root / "usr/bin/plotvue")
        self.assertEqual(self.scratch_files(1), [self.home / SCRATCH])


if __name__ == "__main__":
    root = Path(sys.argv.pop())
    unittest.main()
