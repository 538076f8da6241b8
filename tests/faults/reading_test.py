"""The small files cannot be read, or say something else: it ends as it must, with a plain sentence."""

import sys
import unittest
from pathlib import Path

from files import BARE, CHARTS, CHOSEN, ENTRIES, LIST, Files


class Reading(Files):
    def test_the_list_is_gone(self):
        replay = self.charted()
        self.take(ENTRIES)
        self.fails(replay, f"click {CHARTS} cmdBack", rf"^The file {ENTRIES} .* cannot be opened \(.+\)\.$")
        replay = self.charted()
        self.take(ENTRIES)
        self.fails(replay, f"choose {CHARTS} optSales 1", rf"^The file {ENTRIES} .* cannot be opened \(.+\)\.$")
        replay = self.charted()
        self.take(ENTRIES)
        self.ends_the_list(replay, f"click {CHARTS} cmdNext")

    def test_the_chosen_row_is_gone(self):
        replay = self.charted()
        self.take(CHOSEN)
        self.fails(replay, f"click {CHARTS} cmdBack", rf"^The file {CHOSEN} .* cannot be opened \(.+\)\.$")
        replay = self.charted()
        self.take(CHOSEN)
        self.fails(replay, f"click {CHARTS} cmdNext", rf"^The file {CHOSEN} .* cannot be opened \(.+\)\.$")

    def test_a_folder_where_the_list_is_read(self):
        replay = self.charted()
        self.put_folder(ENTRIES)
        self.fails(replay, f"click {CHARTS} cmdBack", rf"^The file {ENTRIES} .* cannot be read \(.+\)\.$")

    def test_files_cut_short(self):
        for name, keep in ((ENTRIES, 0), (ENTRIES, 300), (CHOSEN, 0), (CHOSEN, 5)):
            with self.subTest(name, keep=keep):
                replay = self.charted()
                self.cut(name, keep)
                self.fails(replay, f"click {CHARTS} cmdBack", rf"^The file {name} .* ends too early\.$")
                replay = self.charted()
                self.cut(name, keep)
                if name == ENTRIES:
                    self.ends_the_list(replay, f"click {CHARTS} cmdNext")
                else:
                    self.fails(replay, f"click {CHARTS} cmdNext", rf"^The file {name} .* ends too early\.$")

    def test_a_chosen_row_that_is_in_no_list(self):
        replay = self.charted()
        (self.directory / CHOSEN).write_bytes(b'1,"nobody"\r\n')
        self.fails(replay, f"choose {CHARTS} optSales 2", rf"^The file {ENTRIES} .* ends too early\.$")
        replay = self.charted()
        (self.directory / CHOSEN).write_bytes(b'1,"nobody"\r\n')
        self.ends_the_list(replay, f"click {CHARTS} cmdNext")

    def test_garbage(self):
        garbage = bytes(range(256)) * 40
        for name in (ENTRIES, CHOSEN):
            for button in ("cmdBack", "cmdNext"):
                with self.subTest(name, button=button):
                    replay = self.charted()
                    (self.directory / name).write_bytes(garbage)
                    if button == "cmdNext":
                        self.ends_the_list(replay, f"click {CHARTS} {button}")
                    else:
                        self.fails(replay, f"click {CHARTS} {button}", rf"^The file {ENTRIES} .* ends too early\.$")

    def test_a_file_that_is_not_to_be_read(self):
        for name in (ENTRIES, CHOSEN):
            with self.subTest(name):
                lines = [f"click {CHARTS} cmdBack", f"choose {CHARTS} optSales 1"]
                if name == CHOSEN:
                    lines.append(f"click {CHARTS} cmdNext")
                for line in lines:
                    replay = self.charted(around=BARE)
                    self.allow(name, 0)
                    self.fails(replay, line, rf"^The file {name} .* cannot be opened \(Permission denied\)\.$")
                    self.take(name)
        replay = self.charted(around=BARE)
        self.allow(ENTRIES, 0)
        self.ends_the_list(replay, f"click {CHARTS} cmdNext")
        self.assertTrue((self.directory / ENTRIES).exists())

    def test_a_pipe_that_nobody_writes(self):
        for name in (ENTRIES, CHOSEN):
            with self.subTest(name):
                replay = self.charted()
                self.put_pipe(name)
                self.fails(replay, f"click {CHARTS} cmdBack", rf"^The file {name} .* ends too early\.$")
                self.take(name)

    def test_a_device_that_never_ends(self):
        for name in (ENTRIES, CHOSEN):
            with self.subTest(name):
                replay = self.charted()
                self.take(name)
                (self.directory / name).symlink_to("/dev/zero")
                self.fails(replay, f"click {CHARTS} cmdBack", rf"^The file {name} .* cannot be read \(.+\)\.$")
                self.take(name)

    def test_two_in_one_directory_step_through_the_list_written_last(self):
        one, two = self.charted(2), self.charted(5)
        two.tell(f"click {CHARTS} cmdNext")
        one.tell(f"click {CHARTS} cmdNext")
        shown = two.state(CHARTS)
        self.assertNotEqual(shown, one.state(CHARTS))
        one.tell(f"click {CHARTS} cmdBack")
        self.assertEqual(shown, one.state(CHARTS))

    def test_another_analysis_in_the_same_directory(self):
        one = self.charted()
        two = self.copied("ratios")
        two.tell("start", "row frmRatio MSFlexGrid1 1")
        self.assertTrue(two.state("frmRatioA")["visible"])
        self.fails(one, f"click {CHARTS} cmdNext", rf"^The file {CHOSEN} .* ends too early\.$")
        self.assertIsNone(two.over)


if __name__ == "__main__":
    Files.program = Path(sys.argv.pop()).resolve()
    unittest.main(verbosity=2)
