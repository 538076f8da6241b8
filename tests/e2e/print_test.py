"""Printing from the real program to a real print server."""

from tests.display.display import CHART, main, soon
from tests.display.printserver import PrintTest


class Printing(PrintTest):
    def test_three_copies_on_the_second_printer_are_three_jobs(self):
        self.open_dialog()
        self.print_copies("3")
        self.display.gone("Print")
        soon("three jobs are printed", lambda: len(self.server.completed("second")) >= 3)

        jobs = self.server.completed("second")
        self.assertEqual(len(jobs), 3)
        self.assertEqual(self.server.completed("first"), [])
        self.server.check_pages(self, jobs)
        (width, height, _), = self.server.pages(jobs[0])
        self.assertGreater(width, height, "the paper is turned as the window is")
        self.assertIn("second", self.display.output("lpstat", "-d"))
        self.still_runs()

    def test_a_cancelled_dialog_prints_nothing(self):
        self.open_dialog()
        self.cancel()
        self.display.window(CHART)
        self.open_dialog()  # when it is open, nothing goes on printing for the one before
        self.cancel()
        self.assertEqual(self.display.output("lpstat", "-W", "all", "-o"), "")
        self.still_runs()


if __name__ == "__main__":
    main()
