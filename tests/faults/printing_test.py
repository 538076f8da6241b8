"""The real program when its print server halts or goes away: what is charted stays, and not a word is said."""

import signal
import sys
import time
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "e2e"))
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

    def spooled(self):
        return len(list((self.server.kept.parent / "spool").glob("d*")))

    def stop_server(self):
        self.server.process.kill()
        self.server.process.wait()

    def goes_on(self):
        """Nothing but the chart is shown; it is refreshed, also to what is copied next."""
        self.desktop.window("Plotvue!")
        self.assertEqual(list(self.desktop.windows()), ["Plotvue!"])
        self.desktop.key("F5")
        self.desktop.window("Plotvue!")
        self.desktop.copy(None)
        self.desktop.key("F5")
        self.desktop.window("Plot Vue!")
        self.assertIsNone(self.process.poll())

    def test_a_server_that_is_gone(self):
        self.stop_server()
        self.desktop.key("ctrl+p")
        self.desktop.window("Print")
        self.desktop.key("Escape")
        self.desktop.gone("Print")
        self.goes_on()

    def test_a_server_that_goes_while_the_printer_is_chosen(self):
        self.desktop.key("ctrl+p")
        self.desktop.window("Print")
        self.stop_server()
        self.desktop.key("alt+p")
        self.desktop.gone("Print")
        self.goes_on()
        self.assertEqual(self.spooled(), 0)

    def test_a_server_that_goes_amid_the_copies(self):
        self.desktop.key("ctrl+p")
        dialog = self.desktop.window("Print")
        height = self.desktop.height(dialog)
        self.desktop.key("alt+o")  # more options
        soon("the dialog shows its options", lambda: self.desktop.height(dialog) > height)
        self.desktop.key("alt+n", "Down")
        self.desktop.key(*["Tab"] * 6, "9", "9", "alt+p")
        soon("the first copy is sent", self.spooled)
        self.stop_server()
        self.desktop.gone("Print")
        self.goes_on()
        self.assertLess(self.spooled(), 99)

    def test_a_server_that_halts_and_goes_on(self):
        self.server.process.send_signal(signal.SIGSTOP)
        self.desktop.key("ctrl+p")
        time.sleep(2)  # the dialog waits for the server's printers
        self.server.process.send_signal(signal.SIGCONT)
        self.desktop.window("Print")
        self.desktop.key("Escape")
        self.desktop.gone("Print")
        self.goes_on()


if __name__ == "__main__":
    program = sys.argv.pop()
    unittest.main(verbosity=2)
