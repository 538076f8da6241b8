"""Printing from under Wine to a print server, once the printing dialog has been answered."""

import sys
import unittest

from wine import SAMPLES, Wine, soon  # isort: skip
from printserver import PrintServer  # isort: skip


class Print(unittest.TestCase):
    def test_three_copies_on_the_second_printer_are_three_jobs(self):
        desktop = Wine()
        desktop.__enter__()
        self.addCleanup(desktop.__exit__)
        server = PrintServer(desktop, ["first", "second"])
        self.addCleanup(server.close)
        desktop.copy((SAMPLES / "product.txt").read_bytes())
        desktop.windows_program(printer, "second", "3")
        jobs = soon("three jobs are printed", lambda: len(found := server.completed("second")) >= 3 and found)
        self.assertEqual(len(jobs), 3)
        self.assertEqual(server.completed("first"), [])
        for job in jobs:
            self.assertEqual(server.copies(job), 1)
            pages = server.page_pixels(job)
            self.assertEqual(len(pages), 1)
            self.assertGreater(pages[0], 2000)
        default = desktop.windows_program("reg", "query", r"HKCU\Software\Microsoft\Windows NT\CurrentVersion\Windows")
        self.assertIn(b"second", default)


if __name__ == "__main__":
    printer = sys.argv.pop()
    unittest.main(verbosity=2)
