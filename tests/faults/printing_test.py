"""The real program when its print server halts or goes away: the chart stays, and no message is shown."""

import signal

from tests.display.display import CHART, START, main, soon
from tests.display.printserver import PrintTest


class Printing(PrintTest):
    def spooled(self):
        return len(list((self.server.kept.parent / "spool").glob("d*")))

    def stop_server(self):
        self.server.process.kill()
        self.server.process.wait()

    def goes_on(self):
        """Only the chart is shown; it can be refreshed, also with what is copied next."""
        self.display.window(CHART)
        self.assertEqual(list(self.display.windows()), [CHART])
        self.display.key("F5")
        self.display.window(CHART)
        self.display.copy(None)
        self.display.key("F5")
        self.display.window(START)
        self.still_runs()

    def test_a_server_that_is_gone(self):
        self.stop_server()
        self.open_dialog()
        self.cancel()
        self.goes_on()

    def test_a_server_that_goes_while_the_printer_is_chosen(self):
        self.open_dialog()
        self.stop_server()
        self.display.key("alt+p")
        self.display.gone("Print")
        self.goes_on()
        self.assertEqual(self.spooled(), 0)

    def test_a_server_that_goes_during_the_copies(self):
        self.open_dialog()
        self.print_copies("9", "9")
        soon("the first copy is sent", self.spooled)
        self.stop_server()
        self.display.gone("Print")
        self.goes_on()
        self.assertLess(self.spooled(), 99)

    def test_a_server_that_halts_and_goes_on(self):
        self.server.process.send_signal(signal.SIGSTOP)
        before = self.server.connections()
        self.display.key("ctrl+p")
        soon("the dialog asks for the server's printers", lambda: self.server.connections() > before)
        self.server.process.send_signal(signal.SIGCONT)
        self.display.window("Print")
        self.cancel()
        self.goes_on()


if __name__ == "__main__":
    main()
