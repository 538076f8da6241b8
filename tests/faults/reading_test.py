"""The small files cannot be read, or hold something else: the session ends with a plain sentence, or the list does."""

from tests.faults.files import BACK, BARE, CHARTS, CHOSEN, DOWN, ENTRIES, LIST, Files, main

PROFIT = f"choose {CHARTS} optSales 1"
CANNOT_BE_OPENED, CANNOT_BE_READ, TOO_EARLY = r"cannot be opened \(.+\)", r"cannot be read \(.+\)", "ends too early"


class Reading(Files):
    def check(self, damage, line, file=None, ending=None, around=()):
        """Damages a file while charts are open and plays the line. The session must end with a sentence about `file`
        that ends so; without a file, the line must lead to "End of list"."""
        with self.subTest(line):
            replay = self.charted(around=around)
            damage()
            if file:
                self.fails(replay, line, rf"^The file {file} .* {ending}\.$")
            else:
                self.ends_the_list(replay, line)
            for name in (ENTRIES, CHOSEN):
                self.take(name)

    def test_the_list_is_gone(self):
        self.check(lambda: self.take(ENTRIES), BACK, ENTRIES, CANNOT_BE_OPENED)
        self.check(lambda: self.take(ENTRIES), PROFIT, ENTRIES, CANNOT_BE_OPENED)
        self.check(lambda: self.take(ENTRIES), DOWN)

    def test_the_chosen_row_is_gone(self):
        for line in (BACK, DOWN):
            self.check(lambda: self.take(CHOSEN), line, CHOSEN, CANNOT_BE_OPENED)

    def test_a_folder_where_the_list_is_read(self):
        self.check(lambda: self.put_folder(ENTRIES), BACK, ENTRIES, CANNOT_BE_READ)

    def test_files_cut_short(self):
        for keep in (0, 300):
            self.check(lambda: self.cut(ENTRIES, keep), BACK, ENTRIES, TOO_EARLY)
            self.check(lambda: self.cut(ENTRIES, keep), DOWN)
        for keep in (0, 5):
            for line in (BACK, DOWN):
                self.check(lambda: self.cut(CHOSEN, keep), line, CHOSEN, TOO_EARLY)

    def test_a_chosen_row_that_is_in_no_list(self):
        self.check(lambda: self.put(CHOSEN, b'1,"nobody"\r\n'), f"choose {CHARTS} optSales 2", ENTRIES, TOO_EARLY)
        self.check(lambda: self.put(CHOSEN, b'1,"nobody"\r\n'), DOWN)

    def test_garbage(self):
        for name in (ENTRIES, CHOSEN):
            self.check(lambda: self.put(name, bytes(range(256)) * 40), BACK, ENTRIES, TOO_EARLY)
            self.check(lambda: self.put(name, bytes(range(256)) * 40), DOWN)

    def test_a_file_that_is_not_to_be_read(self):
        for name, line in ((ENTRIES, BACK), (ENTRIES, PROFIT), (CHOSEN, BACK), (CHOSEN, PROFIT), (CHOSEN, DOWN)):
            self.check(lambda: self.allow(name, 0), line, name, r"cannot be opened \(Permission denied\)", around=BARE)
        self.check(lambda: self.allow(ENTRIES, 0), DOWN, around=BARE)

    def test_a_pipe_that_nobody_writes(self):
        for name in (ENTRIES, CHOSEN):
            self.check(lambda: self.put_pipe(name), BACK, name, TOO_EARLY)

    def test_a_device_that_never_ends(self):
        for name in (ENTRIES, CHOSEN):
            self.check(lambda: self.put_link(name, "/dev/zero"), BACK, name, CANNOT_BE_READ)

    def test_two_in_one_directory_step_through_the_list_written_last(self):
        one, two = self.charted(2), self.listed()
        two.tell(f"row {LIST} MSFlexGrid2 1", DOWN)  # the other list
        one.tell(DOWN)
        shown = two.state(CHARTS)
        self.assertNotEqual(shown, one.state(CHARTS))
        one.tell(BACK)
        self.assertEqual(shown, one.state(CHARTS))

    def test_another_analysis_in_the_same_directory(self):
        one = self.charted()
        two = self.copied("ratios")
        two.tell("start", "row frmRatio MSFlexGrid1 1")
        self.assertTrue(two.state("frmRatioA")["visible"])
        self.fails(one, DOWN, rf"^The file {CHOSEN} .* {TOO_EARLY}\.$")
        self.assertIsNone(two.over)


if __name__ == "__main__":
    main()
