"""Printing from under Wine to a print server, once the printing dialog has been answered."""

from tests.display.display import PRODUCT, main, soon
from tests.display.printserver import PrintServer
from tests.display.wine import DEFAULT_PRINTER, WineTest


class Print(WineTest):
    def test_three_copies_on_the_second_printer_are_three_jobs(self):
        server = PrintServer(self.display, ["first", "second"])
        self.addCleanup(server.close)
        self.display.copy(PRODUCT)
        self.display.windows_program(self.program, "second", "3")
        jobs = soon("three jobs are printed", lambda: len(found := server.completed("second")) >= 3 and found)
        self.assertEqual(len(jobs), 3)
        self.assertEqual(server.completed("first"), [])
        server.check_pages(self, jobs)
        default = self.display.windows_program("reg", "query", DEFAULT_PRINTER)
        self.assertIn(b"second", default)


if __name__ == "__main__":
    main()
