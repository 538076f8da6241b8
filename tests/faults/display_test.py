"""The real program when what it depends on halts or goes away: the clipboard's owner, the display."""

import os
import signal
import subprocess
import time
from pathlib import Path

from tests.display.display import (
    CHART, LIST, NEED_DATA, PRODUCT, SCREEN, Display, DisplayTest, ended, main, sample, soon)

GAINS = sample("monthtomonth")
TEXTS = "text/plain;charset=utf-8", "UTF8_STRING", "text/plain", "STRING", "TEXT"
LONG = PRODUCT + b"no screen at all\r\n" * 300_000  # is sent in many pieces


class OnTheDisplay(DisplayTest):
    def charts_the_next_capture(self):
        self.charts(PRODUCT)
        self.still_runs()
        self.still_held(PRODUCT)

    def still_held(self, capture, owner=None):
        """The clipboard still has its owner and holds what was copied."""
        self.assertIsNone((owner or self.display.owner).poll())
        held = subprocess.run(["xclip", "-selection", "clipboard", "-out"], env=self.display.env,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=20, check=True).stdout
        self.assertTrue(held == capture)  # too long to be shown

    def halting_owner(self, capture, pieces, *formats):
        """Another program holds the capture, in these formats, and halts after so many pieces of its answer."""
        path = self.display.home / "long"
        path.write_bytes(capture)
        owner = self.display.launch(os.environ["OWNER"], str(path), str(pieces), *formats, stdout=subprocess.PIPE)
        self.assertEqual(owner.stdout.readline(), b"held\n")  # and not the owner before it
        return owner

    def start_until_the_owner_halts(self, pieces, *formats):
        """Starts the program, which asks the owner of a long text; returns the owner when it has halted."""
        owner = self.halting_owner(LONG, pieces, *formats)
        self.start()
        stat = Path(f"/proc/{owner.pid}/stat")
        soon("the owner has halted", lambda: stat.read_text().rpartition(")")[2].split()[0] == "T")
        return owner

    def start_with_an_owner_that_halts(self, pieces, *formats):
        """After the time that the toolkit gives an owner the program goes on, and says that there is no data."""
        owner = self.start_until_the_owner_halts(pieces, *formats)
        began = time.monotonic()
        self.needs_data()
        self.assertLess(time.monotonic() - began, 8)
        return owner

    def test_an_owner_that_halts_during_a_long_answer_and_goes_on(self):
        owner = self.start_with_an_owner_that_halts(pieces=10)
        owner.send_signal(signal.SIGCONT)
        self.still_held(LONG, owner)
        self.display.key("F5")
        self.display.window(CHART)
        self.still_held(LONG, owner)
        self.still_runs()

    def test_an_owner_that_halts_during_a_long_answer_and_another_copy(self):
        owner = self.start_with_an_owner_that_halts(pieces=1)
        self.charts_the_next_capture()
        owner.send_signal(signal.SIGCONT)
        self.assertEqual(ended(owner), 0)  # the clipboard is no longer its own
        self.display.key("F5")
        self.display.window(CHART)
        self.still_held(PRODUCT)

    def test_an_owner_of_several_formats_that_halts_is_asked_for_one(self):
        for formats in (TEXTS, (SCREEN, *TEXTS)):
            with self.subTest(formats):
                owner = self.start_with_an_owner_that_halts(1, *formats)
                self.charts_the_next_capture()
                owner.kill()
                self.process.kill()
                self.process.wait()

    def test_an_owner_that_is_gone_before_or_during_its_answer(self):
        for pieces in (0, 10):  # what has come by then begins with a whole screen
            with self.subTest(pieces=pieces):
                owner = self.start_until_the_owner_halts(pieces)
                owner.kill()
                self.needs_data()
                self.charts_the_next_capture()
                self.process.kill()
                self.process.wait()

    def test_the_display_is_closed(self):
        for capture, title in ((None, NEED_DATA), (PRODUCT, CHART)):
            with self.subTest(title), Display(self.program) as display:
                display.copy(capture)
                process = display.start()
                display.window(title)
                display.started[0].kill()  # the display
                self.assertEqual(ended(process), 1)

    def test_a_folder_in_the_place_of_the_scratch_file(self):
        (self.display.home / "pvuscrn.txt").mkdir()
        self.display.copy(GAINS)
        self.start(LIST)
        self.still_held(GAINS)
        self.display.key("Return")
        self.ends(1)
        self.still_held(GAINS)
        self.assertRegex(self.errors(),
                         r"^PlotVue: The file pvuscrn.txt in the working directory cannot be created \(.+\)\.\n$")


if __name__ == "__main__":
    main()
