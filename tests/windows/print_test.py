"""Printing from under Wine to a print server, once the printing dialog has been answered."""

from wine import DEFAULT_PRINTER, PRODUCT, WineTest, main, soon  # isort: skip
from printserver import PrintServer  # isort: skip


class Print(WineTest):
    def test_three_copies_on_the_second_printer_are_three_jobs(self):
        server = PrintServer(self.desktop, ["first", "second"])
        self.addCleanup(server.close)
        self.desktop.copy(PRODUCT)
        self.desktop.windows_program(self.program, "second", "3")
        jobs = soon("three jobs are printed", lambda: len(found := server.completed("second")) >= 3 and found)
        self.assertEqual(len(jobs), 3)
        self.assertEqual(server.completed("first"), [])
        server.check_pages(self, jobs)
        default = self.desktop.windows_program("reg", "query", DEFAULT_PRINTER)
        self.assertIn(b"second", default)


if __name__ == "__main__":
    main()
