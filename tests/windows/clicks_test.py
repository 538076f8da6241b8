"""plotvue.exe as a person uses it: what is copied is charted, keys and mouse do what they should."""

import contextlib
import struct
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from tests.display.display import (
    CHART, FIGURES, LIST, NEED_DATA, PRODUCT, SCREEN, START, NotInTime, ended, sample, soon)
from tests.display.printserver import PrintServer
from tests.display.wine import DEFAULT_PRINTER, WineTest
from tests.verdict import remark

SYSTEMS_TIME = 0.5  # for a double-click, from one press to the next
BARS = bytes((0x24, 0x58, 0xB0))  # the first series' colour


class Clicks(WineTest):
    shared = True

    def setUp(self):
        super().setUp()
        self.directory = Path(self.enterContext(tempfile.TemporaryDirectory(prefix="plotvue-clicks-")))

    def start(self, title):
        # Not a pipe, because processes that Wine starts in the background would keep it open.
        self.printed = self.enterContext(tempfile.TemporaryFile())
        self.process = self.display.start(directory=self.directory, stderr=self.printed)
        self.addCleanup(self.process.wait)
        self.addCleanup(self.process.kill)
        return self.window(title)

    def errors(self):
        self.printed.seek(0)
        return self.printed.read().decode()

    def window(self, title):
        """Waits for the window; under Wine the program hears of its focus a moment later than X does."""
        number = self.display.window(title)
        time.sleep(0.5)  # nothing outside the program tells
        return number

    def copy(self, capture):
        """An X program copies, and Wine has noticed."""
        self.until_pasted(lambda: self.display.copy(capture), capture)

    def until_pasted(self, copy, text):
        """Calls `copy` until a Windows program would get the text: Wine misses a change of the clipboard now and then,
        for example if a program has its clipboard open at that moment. The last lines of the test run tell of it."""
        tries = 0

        def taken():
            nonlocal tries
            tries += 1
            copy()
            with contextlib.suppress(NotInTime):
                return soon("the text can be pasted", lambda: self.pasted() == text, 5)
        soon("Wine takes what is copied", taken)
        if tries > 1:
            remark(f"Wine took what was copied in try {tries} ({self.id()}).")

    def pasted(self, *format_):
        """What a Windows program would get: the text, or the bytes in this format."""
        file = self.directory / "pasted"
        self.display.windows_program(copier, "--paste", f"Z:{file}", *format_)
        held = file.read_bytes()
        file.unlink()
        return held

    def copy_in_windows(self, text, *seconds):
        """Another Windows program copies; returns it if it holds the clipboard open for so many seconds from now."""
        file = self.directory / "copied"
        file.write_bytes(text)
        self.leave_x_clipboard()
        if not seconds:
            self.until_pasted(lambda: self.display.windows_program(copier, f"Z:{file}"), text)
            return None
        busy = self.display.launch("wine", copier, f"Z:{file}", *map(str, seconds))
        soon("it holds the clipboard open", lambda: not file.exists())
        return busy

    def leave_x_clipboard(self):
        """No X program owns it any more, and Wine has noticed: later it would take what is copied there for gone."""
        self.display.copy(None)
        soon("nobody owns the clipboard", lambda: not self.display.held(5))
        time.sleep(1)  # Wine says nowhere that it has noticed

    def empty_clipboard(self):
        self.leave_x_clipboard()
        self.display.windows_program(copier)

    def picture(self, window):
        return subprocess.run(["import", "-window", window, "-depth", "8", "rgb:-"], env=self.display.env,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False, timeout=20).stdout

    def charted(self, window):
        """The picture of the window, once it holds bars and stays as it is."""
        def still():
            before = self.picture(window)
            time.sleep(0.2)
            return before if before.count(BARS) > 300 and before == self.picture(window) else None
        return soon("bars are drawn and stay", still)

    def exit_of_chart(self, window):
        """Points at its Exit button, in the lower right corner; returns the place on the screen."""
        width, height = self.display.size(window)
        return self.display.point_at(window, width - 60, height - 24)

    def exit_of_start(self, window):
        """Points at its Exit button, the second from the lower left corner; returns the place on the screen."""
        return self.display.point_at(window, 140, self.display.height(window) - 24)

    def chosen(self):
        """What the small file says of the row that is shown."""
        file = self.directory / "plotvue1.txt"
        return file.read_bytes() if file.exists() else b""

    def press(self, key, what, condition):
        self.display.key(key)
        return soon(what, condition)

    def test_what_an_x_program_copies_is_charted_and_exit_leads_out(self):
        self.copy(PRODUCT)
        window = self.start(CHART)
        self.charted(window)
        self.display.key("Escape")
        self.window(START)
        self.display.gone(CHART)
        self.display.key("Escape")
        self.ends()
        self.assertEqual([file.name for file in self.directory.iterdir()], [])

    def test_what_a_windows_program_copies_is_read_as_it_is(self):
        text = sample("vendors").replace(b"\r\n", b"\r\r\n", 3)
        self.copy_in_windows(text)
        self.start(LIST)
        self.assertEqual((self.directory / "pvuscrn.txt").read_bytes(), b'"' + text + b'"\r\n')

    def test_a_clipboard_that_is_busy_for_a_moment_is_read(self):
        busy = self.copy_in_windows(PRODUCT, 1)
        self.charted(self.start(CHART))
        self.assertEqual(ended(busy), 0)

    def test_a_clipboard_that_stays_busy_holds_no_data(self):
        busy = self.copy_in_windows(PRODUCT, 15)
        self.start(NEED_DATA)
        self.display.key("Escape")
        self.window(START)
        busy.kill()

    def test_buttons_are_clicked_and_options_chosen(self):
        self.copy(PRODUCT)
        window = self.start(CHART)
        first = self.charted(window)
        self.display.key("Tab", "Up")
        soon("24 months are charted", lambda: self.charted(window) != first)
        self.display.click(self.exit_of_chart(window))
        self.window(START)
        self.display.gone(CHART)

    def exit_double_clicked(self, apart):
        """Whether the clicks were fast enough. In the start-up window the Exit button is at the same place."""
        chart = self.start(CHART)
        self.display.output("xdotool", "windowsize", chart, "640", "560")  # so that both windows fit on the screen
        soon("the window is smaller", lambda: self.display.size(chart) == [640, 560])
        place = self.exit_of_chart(chart)
        self.display.key("Escape")
        start = self.window(START)
        self.display.put(start, lambda: self.exit_of_start(start), place)
        self.display.key("F5")
        self.window(CHART)
        surely = self.display.double_click(place, apart, lambda: START in self.display.windows()) < SYSTEMS_TIME
        if surely:
            self.window(START)
            self.still_runs()
            self.display.click(place)
            self.ends()
        return surely

    def test_a_double_click_on_exit_leads_to_the_start_window_and_no_further(self):
        self.copy(PRODUCT)
        for apart in (0.2, 0.35):
            with self.subTest(apart=apart):
                self.until_fast_enough(f"A double-click on Exit, {apart} s apart,",
                                       lambda: self.exit_double_clicked(apart))

    def test_refresh_charts_what_was_copied_since(self):
        self.copy(PRODUCT)
        window = self.start(CHART)
        first = self.charted(window)
        self.copy(PRODUCT.replace(b" 93934.66", b" 13934.66"))
        self.display.key("F5")
        soon("the other figures are charted", lambda: self.charted(window) != first)
        self.display.key("Escape")
        self.window(START)
        self.copy(sample("vendors"))
        self.display.key("F5")
        self.window(LIST)

    def printing_dialog(self):
        """Opens the printing dialog over a chart, with two printers; returns their print server."""
        server = PrintServer(self.display, ["first", "second"])
        self.addCleanup(server.close)
        self.copy(PRODUCT)
        self.charted(self.start(CHART))
        self.display.key("ctrl+p")
        self.window("Print")
        return server

    def test_copies_are_printed_on_the_printer_that_the_dialog_names(self):
        server = self.printing_dialog()
        self.display.key("Down", "alt+c", "End", "BackSpace", "2", "Return")
        jobs = soon("two jobs are printed", lambda: len(found := server.completed("second")) >= 2 and found)
        self.display.gone("Print")
        self.assertEqual(len(jobs), 2)
        self.assertEqual(server.completed("first"), [])
        server.check_pages(self, jobs)
        default = self.display.windows_program("reg", "query", DEFAULT_PRINTER)
        self.assertIn(b"second", default)

    def test_a_cancelled_printing_dialog_prints_nothing(self):
        server = self.printing_dialog()
        self.display.key("Down", "Escape")
        self.display.gone("Print")
        self.window(CHART)
        self.display.key("Escape")
        self.window(START)
        self.assertEqual(server.completed("first") + server.completed("second"), [])

    def test_a_row_is_clicked_and_down_and_back_step_through_the_list(self):
        self.copy(sample("vendors"))
        window = self.start(LIST)
        self.display.key("Down", "Return")
        soon("the row's key is written", self.chosen)
        chart = soon("the chart has a window of its own", lambda: next(
            (number for number in self.numbers() if number != window), None))
        soon("it has the focus", lambda: self.display.output("xdotool", "getwindowfocus").strip() == chart)
        self.charted(chart)
        first = self.chosen()
        self.press("Page_Down", "Down goes to the next row", lambda: self.chosen() != first)
        self.press("Page_Up", "Back returns", lambda: self.chosen() == first)
        self.press("Escape", "the chart goes", lambda: self.numbers() == [window])

    def numbers(self):
        return self.display.output("xdotool", "search", "--onlyvisible", "--class", "plotvue").split()

    def test_figures_and_pictures_are_pasted_by_other_programs_and_the_screen_stays(self):
        self.copy(PRODUCT)
        self.charted(self.start(CHART))
        self.press("ctrl+shift+c", "figures are copied", lambda: self.pasted(SCREEN) == PRODUCT + b"\0")
        self.assertEqual(self.pasted(), FIGURES)
        self.display.key("F5")
        self.press("ctrl+Insert", "a picture is copied", lambda: self.pasted("PNG"))
        self.assertTrue(self.pasted("PNG").startswith(b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR"))
        self.assertEqual(self.pasted(), b"")
        width, height = struct.unpack(">II", self.pasted("PNG")[16:24])
        size, *sides, planes, bits, compression = struct.unpack("<IiiHHI", self.pasted("DIB")[:20])
        self.assertEqual((size, sides, planes, bits, compression), (40, [width, height], 1, 24, 0))
        self.assertEqual(self.pasted(SCREEN), PRODUCT + b"\0")
        self.display.key("Tab", "Up", "Escape")
        self.window(START)
        self.display.key("F5")
        self.window(CHART)

    def test_what_was_copied_outlives_plotvue_and_is_charted_by_the_next(self):
        self.copy(sample("vendors"))
        self.start(LIST)
        self.press("ctrl+c", "rows are copied", lambda: self.pasted(SCREEN) == sample("vendors") + b"\0")
        rows = self.pasted()
        self.assertTrue(rows.startswith(b"Rank\tEOM FIFO\tVendor Name\tProduct Category\tStock Months\r\n1\t97787\t"))
        self.display.key("Escape")
        self.window(START)
        self.display.key("Escape")
        self.ends()
        soon("it can still be pasted", lambda: self.pasted() == rows)
        (self.directory / "pvuscrn.txt").unlink()
        self.start(LIST)
        self.assertEqual((self.directory / "pvuscrn.txt").read_bytes(), b'"' + sample("vendors") + b'"\r\n')

    def test_a_context_menu_opens_by_keys(self):
        self.copy(PRODUCT)
        window = self.start(CHART)
        self.charted(window)
        for key in ("Menu", "shift+F10"):
            self.press(key, "a menu opens", lambda: len(self.numbers()) == 2)
            self.press("Escape", "it closes", lambda: self.numbers() == [window])

    def test_a_picture_is_saved(self):
        self.copy(PRODUCT)
        self.charted(self.start(CHART))
        self.display.key("ctrl+s")
        self.window("Save Picture")
        file = self.directory / "a.png"
        self.display.key("shift+End")  # Wine does not select the proposed name, as Windows does
        self.display.output("xdotool", "type", "--delay", "30", "Z:" + str(file).replace("/", "\\"))
        self.press("Return", "it is written", lambda: file.exists() and file.read_bytes().startswith(b"\x89PNG"))
        self.display.gone("Save Picture")
        self.assertEqual(list(self.directory.iterdir()), [file])

    def test_an_empty_clipboard_needs_data(self):
        self.empty_clipboard()
        self.start(NEED_DATA)
        self.display.key("Escape")
        self.window(START)

        try:
            self.display.key("Escape")
            self.ends()
        except NotInTime:  # under Wine a key is lost now and then after a box
            remark(f"Wine lost a key ({self.id()}).")
            self.display.key("Escape")
            self.ends()

    def test_a_short_screen_is_waited_for_until_the_box_is_closed(self):
        self.copy_in_windows(b"\r\n".join(PRODUCT.split(b"\r\n")[:15]))
        self.start(LIST)
        self.display.key("Return")
        self.ends(1)
        self.assertEqual(self.errors(),
                         "PlotVue: the copied screen has fewer than 20 lines; PlotVue waits for the rest.\r\n")

    def test_an_error_is_reported_in_a_box(self):
        (self.directory / "pvuscrn.txt").mkdir()
        self.copy(sample("vendors"))
        self.start(LIST)
        self.display.key("Return")
        self.ends(1)
        self.assertRegex(self.errors(),
                         r"^PlotVue: The file pvuscrn.txt in the working directory cannot be created "
                         r"\([^\r\n]+\)\.\r\n$")


if __name__ == "__main__":
    WineTest.program, copier = sys.argv[1:3]
    del sys.argv[1:]
    unittest.main(verbosity=2)
