"""What other programs may hold on an X11 clipboard, and how badly they may behave."""

import signal
import time

from tests.display.accessible import SpokenTest
from tests.display.display import CHART, NEED_DATA, PRODUCT, START, main, sample, soon

PICTURE = b"\x89PNG\r\n\x1a\n" + bytes(64)
LARGE = 5_000_000  # more than one transfer carries: it comes in pieces


class X11Clipboard(SpokenTest):
    def own(self, target, content):
        """Another program offers the content as this type and no other; returns the program."""
        path = self.display.home / "content"
        path.write_bytes(content)
        owner = self.display.launch("xclip", "-quiet", "-selection", "clipboard", "-t", target, "-in", str(path))
        self.addCleanup(owner.wait)
        self.addCleanup(owner.kill)
        soon(f"the clipboard offers {target}", lambda: target in self.display.output(
            "xclip", "-selection", "clipboard", "-t", "TARGETS", "-out").split())
        return owner

    def chart(self):
        """Starts the program; returns the name and the points of the chart that it opens."""
        self.start(CHART)
        chart = self.application().shown(CHART).first("chart")
        points = [point.name for point in chart.children()]
        self.process.kill()
        self.process.wait()
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

    def test_any_plain_text_is_read(self):
        expected = self.plain()
        for target in ("text/plain", "text/plain;charset=utf-8", "text/plain;charset=UTF-8",
                       "text/plain;charset=iso-8859-1"):
            with self.subTest(target):
                self.own(target, PRODUCT)
                self.assertEqual(self.chart(), expected)

    def test_other_texts_are_no_data(self):
        self.own("text/html", PRODUCT)
        self.start(NEED_DATA)

    def test_line_ends_of_any_kind_chart_the_same(self):
        for name in ("product", "glhistory", "customer", "salesmencategories"):
            capture = sample(name)
            self.own("UTF8_STRING", capture)
            expected = self.chart()
            for ends in (b"\n", b"\r"):
                with self.subTest(sample=name, ends=ends):
                    self.own("UTF8_STRING", capture.replace(b"\r\n", ends))
                    self.assertEqual(self.chart(), expected)

    def test_a_list_keeps_its_last_line_where_a_terminal_copies_no_end_of_it(self):
        lines = sample("monthtomonth").split(b"\r\n")
        last = max(i for i, line in enumerate(lines) if line.startswith(b"GAIN:") and b" -" in line[:14])
        self.own("UTF8_STRING", b"\n".join(lines[:last + 1]))
        self.start("PlotVue!")
        losses = self.application().shown("PlotVue!").first("table", "Losses")
        rows, _ = losses.rows_and_columns()
        self.assertEqual(rows, sum(b" -" in line[:14] for line in lines if line.startswith(b"GAIN:")))

    def test_a_picture_is_no_data(self):
        self.own("image/png", PICTURE)
        self.start(NEED_DATA)

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
        # The day comes after the identifier: there is none, and the newest month without a projection.
        self.assertEqual(found[:-1], points[:-1])

    def test_an_owner_that_hangs_is_no_data_and_the_program_lives_on(self):
        owner = self.own("UTF8_STRING", PRODUCT)
        owner.send_signal(signal.SIGSTOP)
        self.start()
        began = time.monotonic()
        self.display.window(NEED_DATA)
        self.assertLess(time.monotonic() - began, 7)
        self.needs_data()
        owner.kill()
        self.charts(PRODUCT)
        self.still_runs()

    def test_an_owner_that_goes_while_a_chart_is_shown_leads_back(self):
        owner = self.own("UTF8_STRING", PRODUCT)
        self.start(CHART)
        owner.kill()
        owner.wait()
        self.display.key("F5")
        self.display.window(START)


if __name__ == "__main__":
    main()
