"""The real program on a real display: what another program copied, and what the user then sees."""

import sys
import unittest

from desktop import SAMPLES, Desktop, ended

PRODUCT = (SAMPLES / "product.txt").read_bytes()


class Clipboard(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(program)
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__)

    def test_a_capture_at_the_start_opens_its_window_alone(self):
        self.desktop.copy(PRODUCT)
        self.desktop.start()
        self.desktop.window("Plotvue!")
        self.assertEqual(list(self.desktop.windows()), ["Plotvue!"])

    def test_refresh_without_a_capture_leads_back_to_the_start_window_and_exit_ends(self):
        self.desktop.copy(PRODUCT)
        process = self.desktop.start()
        self.desktop.window("Plotvue!")
        self.desktop.copy(None)
        self.desktop.key("F5")
        self.desktop.window("Plot Vue!")
        self.desktop.gone("Plotvue!")
        self.desktop.key("Escape")
        self.assertEqual(ended(process), 0)
        self.assertEqual(process.stderr.read(), b"")

    def test_an_empty_clipboard_is_told_and_the_start_window_stays(self):
        process = self.desktop.start()
        self.desktop.window("Need Data")
        self.assertIn("Plot Vue!", self.desktop.windows())
        self.desktop.key("Return")
        self.desktop.gone("Need Data")
        self.desktop.window("Plot Vue!")

        self.desktop.copy(PRODUCT)
        self.desktop.key("F5")
        self.desktop.window("Plotvue!")
        self.desktop.gone("Plot Vue!")
        self.assertIsNone(process.poll())

    def test_bare_line_feeds_are_read_as_line_ends(self):
        self.desktop.copy(PRODUCT.replace(b"\r\n", b"\n"))
        self.desktop.start()
        self.desktop.window("Plotvue!")

    def test_a_newest_month_without_a_name_ends_with_the_error_report(self):
        lines = PRODUCT.split(b"\r\n")
        newest = next(i for i, line in enumerate(lines) if b"-----" in line[:28]) + 1
        lines[newest] = b"XXX" + lines[newest][3:]
        self.desktop.copy(b"\r\n".join(lines))
        process = self.desktop.start()
        self.desktop.window("PlotVue")
        self.assertIsNone(process.poll())
        self.desktop.key("Return")
        self.assertEqual(ended(process), 1)
        self.assertRegex(process.stderr.read().decode(), r"^PlotVue: [A-Z].*\.\n$")

    def test_without_a_display_one_sentence_says_so(self):
        for display in (None, "", ":9999"):
            with self.subTest(display=display):
                self.desktop.env.pop("DISPLAY", None)
                if display is not None:
                    self.desktop.env["DISPLAY"] = display
                process = self.desktop.start()
                self.assertEqual(ended(process), 1)
                self.assertEqual(process.stderr.read(), b"PlotVue: there is no display to show windows on.\n")

    def test_what_else_keeps_windows_from_being_shown_is_said_too(self):
        self.desktop.env["QT_QPA_PLATFORM"] = "no such"
        process = self.desktop.start()
        self.assertEqual(ended(process), 1)
        self.assertRegex(process.stderr.read().decode(), r"PlotVue: no window can be shown: [^\n]+\n$")


if __name__ == "__main__":
    program = sys.argv.pop()
    unittest.main(verbosity=2)
