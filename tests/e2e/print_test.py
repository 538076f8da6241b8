"""Printing from the real program to a real print server."""

import sys
import unittest

from desktop import SAMPLES, Desktop, soon
from printserver import PrintServer


class Printing(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(program)
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__)
        self.server = PrintServer(self.desktop, ["first", "second"])
        self.addCleanup(self.server.close)
        self.desktop.copy((SAMPLES / "product.txt").read_bytes())
        self.process = self.desktop.start()
        self.desktop.window("Plotvue!")

    def test_three_copies_on_the_second_printer_are_three_jobs(self):
        self.desktop.key("ctrl+p")
        dialog = self.desktop.window("Print")
        height = self.desktop.height(dialog)
        self.desktop.key("alt+o")  # more options
        soon("the dialog shows its options", lambda: self.desktop.height(dialog) > height)
        self.desktop.key("alt+n", "Down")      # the next printer
        self.desktop.key(*["Tab"] * 6, "3", "alt+p")  # the number of copies has no key of its own
        self.desktop.gone("Print")
        soon("three jobs are printed", lambda: len(self.server.completed("second")) >= 3)

        jobs = self.server.completed("second")
        self.assertEqual(len(jobs), 3)
        self.assertEqual(self.server.completed("first"), [])
        for job in jobs:
            self.assertEqual(self.server.copies(job), 1)
            pages = self.server.page_pixels(job)
            self.assertEqual(len(pages), 1)
            self.assertGreater(pages[0], 2000)
        self.assertIn("second", self.desktop.output("lpstat", "-d"))
        self.assertIsNone(self.process.poll())

    def test_a_cancelled_dialog_prints_nothing(self):
        self.desktop.key("ctrl+p")
        self.desktop.window("Print")
        self.desktop.key("Escape")
        self.desktop.gone("Print")
        self.desktop.window("Plotvue!")
        self.assertEqual(self.server.completed("first") + self.server.completed("second"), [])
        self.assertIsNone(self.process.poll())


if __name__ == "__main__":
    program = sys.argv.pop()
    unittest.main(verbosity=2)
