"""What other programs may hold on an X11 clipboard, and how badly they may behave."""

import signal
import sys
import time
import unittest

from accessible import SpokenDesktop
from desktop import SAMPLES, soon

PRODUCT = (SAMPLES / "product.txt").read_bytes()
PICTURE = b"\x89PNG\r\n\x1a\n" + bytes(64)
LARGE = 5_000_000  # more than one transfer carries: it comes in pieces


class X11Clipboard(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = SpokenDesktop(program)
        cls.desktop.__enter__()
        cls.addClassCleanup(cls.desktop.__exit__)

    def own(self, target, content):
        """Another program offers the content as this type and no other; returns the program."""
        path = self.desktop.home / "content"
        path.write_bytes(content)
        owner = self.desktop.launch("xclip", "-quiet", "-selection", "clipboard", "-t", target, "-in", str(path))
        self.addCleanup(owner.wait)
        self.addCleanup(owner.kill)
        soon(f"the clipboard offers {target}", lambda: target in self.desktop.output(
            "xclip", "-selection", "clipboard", "-t", "TARGETS", "-out").split())
        return owner

    def start(self):
        process = self.desktop.start()
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def chart(self, title="Plotvue!"):
        """Starts the program; returns the name and the points of the chart that it opens."""
        process = self.start()
        self.desktop.window(title)
        chart = self.desktop.application(process).shown(title).first("chart")
        points = [point.name for point in chart.children()]
        process.kill()
        process.wait()
        return chart.name, points

    def plain(self):
        self.own("UTF8_STRING", PRODUCT)
        return self.chart()

    def with_code(self, code):
        """The sample's text with another product code, of ten characters as well."""
        lines = PRODUCT.decode().split("\r\n")
        colon = lines[1].index(":") + 1
        lines[1] = lines[1][:colon] + code + lines[1][colon + 10:]
        return "\r\n".join(lines)

    def test_text_beyond_latin_1_keeps_its_columns(self):
        _, points = self.plain()
        self.own("UTF8_STRING", self.with_code("Łódź–№–123").encode())
        name, found = self.chart()
        self.assertIn("Product: Łódź–№–123 DIESEL", name)
        self.assertEqual(found, points)

    def test_an_accent_in_latin_1_is_one_column(self):
        _, points = self.plain()
        self.own("STRING", self.with_code("ÉÜñ4567890").encode("latin-1"))
        name, found = self.chart()
        self.assertIn("Product: ÉÜñ4567890 DIESEL", name)
        self.assertEqual(found, points)

    def test_line_ends_of_any_kind_chart_the_same(self):
        for sample in ("product", "glhistory", "customer", "salesmencategories"):
            capture = (SAMPLES / f"{sample}.txt").read_bytes()
            self.own("UTF8_STRING", capture)
            expected = self.chart()
            for ends in (b"\n", b"\r"):
                with self.subTest(sample=sample, ends=ends):
                    self.own("UTF8_STRING", capture.replace(b"\r\n", ends))
                    self.assertEqual(self.chart(), expected)

    def test_a_picture_is_no_data(self):
        self.own("image/png", PICTURE)
        self.start()
        self.desktop.window("Need Data")

    def test_a_large_text_is_read_from_its_beginning(self):
        expected = self.plain()
        self.own("UTF8_STRING", PRODUCT + b"no screen at all\r\n" * (LARGE // 18))
        self.assertEqual(self.chart(), expected)

    def test_a_large_text_is_read_to_its_end(self):
        expected, points = self.plain()
        anonymous = PRODUCT.replace(b"QXM31H", b"      ")
        self.own("UTF8_STRING", anonymous + b"no screen at all\r\n" * (LARGE // 18) + b"QXM31H\r\n")
        name, found = self.chart()
        self.assertEqual(name, expected)
        # The day stands behind the identifier: there is none, and the newest month without a projection.
        self.assertEqual(found[:-1], points[:-1])

    def test_an_owner_that_hangs_is_no_data_and_the_program_lives_on(self):
        owner = self.own("UTF8_STRING", PRODUCT)
        owner.send_signal(signal.SIGSTOP)
        process = self.start()
        began = time.monotonic()
        self.desktop.window("Need Data")
        self.assertLess(time.monotonic() - began, 7)
        self.desktop.key("Return")
        self.desktop.window("Plot Vue!")
        owner.kill()
        self.desktop.copy(PRODUCT)
        self.desktop.key("F5")
        self.desktop.window("Plotvue!")
        self.assertIsNone(process.poll())

    def test_an_owner_that_goes_while_a_chart_is_shown_leads_back(self):
        owner = self.own("UTF8_STRING", PRODUCT)
        self.start()
        self.desktop.window("Plotvue!")
        owner.kill()
        owner.wait()
        self.desktop.key("F5")
        self.desktop.window("Plot Vue!")


if __name__ == "__main__":
    program = sys.argv.pop()
    unittest.main(verbosity=2)
