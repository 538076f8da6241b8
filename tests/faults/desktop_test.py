"""The real program when what it stands on goes away: the clipboard's owner, the display."""

import os
import signal
import sys
import time
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "e2e"))
from desktop import SAMPLES, Desktop, ended

PRODUCT = (SAMPLES / "product.txt").read_bytes()
GAINS = (SAMPLES / "monthtomonth.txt").read_bytes()


class OnTheDesktop(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(program)
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__)

    def need_data(self):
        self.desktop.window("Need Data")
        self.desktop.key("Return")
        self.desktop.gone("Need Data")
        self.desktop.window("Plot Vue!")

    def charts_the_next_capture(self, process):
        self.desktop.copy(PRODUCT)
        self.desktop.key("F5")
        self.desktop.window("Plotvue!")
        self.assertIsNone(process.poll())

    def test_an_owner_that_is_gone_when_it_should_answer(self):
        self.desktop.copy(PRODUCT)
        os.kill(self.desktop.owner.pid, signal.SIGSTOP)
        process = self.desktop.start()
        time.sleep(1)  # it has asked by now and waits
        self.desktop.owner.kill()
        self.need_data()
        self.charts_the_next_capture(process)

    def test_an_owner_that_is_gone_amid_a_long_answer(self):
        self.desktop.copy(b" " * 50_000_000)  # comes in pieces; whole or not, it is no screen
        process = self.desktop.start()
        time.sleep(0.5)
        self.desktop.owner.kill()
        self.need_data()
        self.charts_the_next_capture(process)

    def test_the_display_is_closed(self):
        for capture, title in ((None, "Need Data"), (PRODUCT, "Plotvue!")):
            with self.subTest(title), Desktop(program) as desktop:
                desktop.copy(capture)
                process = desktop.start()
                desktop.window(title)
                desktop.started[0].kill()  # the display
                self.assertNotEqual(ended(process), 0)

    def test_no_display_at_all(self):
        self.desktop.env["DISPLAY"] = ":4711"
        self.assertNotEqual(ended(self.desktop.start()), 0)

    def test_a_folder_in_the_place_of_the_scratch_file(self):
        (self.desktop.home / "pvuscrn.txt").mkdir()
        self.desktop.copy(GAINS)
        process = self.desktop.start()
        self.desktop.window("PlotVue")
        self.desktop.key("Return")
        self.assertEqual(ended(process), 1)
        self.assertRegex(process.stderr.read().decode(),
                         r"^PlotVue: The file pvuscrn.txt in the working directory cannot be created \(.+\)\.\n$")


if __name__ == "__main__":
    program = sys.argv.pop()
    unittest.main(verbosity=2)
