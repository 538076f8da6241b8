"""The small files cannot be written: the session ends with a plain sentence."""

import os
import unittest

from tests.faults.files import (
    BACK, BARE, CHARTS, CHOSEN, DOWN, ENTRIES, FULL, LIST, MAY_MOUNT, ROW, SCRATCH, Files, disk_of, main)

CANNOT_BE_CREATED = r"cannot be created \(.+\)"
CANNOT_BE_WRITTEN = rf"cannot be written \({FULL}\)"


class Writing(Files):
    def cannot_be_chosen(self, damage, name, ending):
        """Damages the file while the list is open and clicks a row; the sentence about the file must end so."""
        with self.subTest(name):
            replay = self.listed()
            damage(name)
            self.fails(replay, ROW, rf"^The file {name} .* {ending}\.$")
            self.take(name)

    def test_a_folder_in_the_place_of_each_file(self):
        self.put_folder(SCRATCH)
        self.fails(self.copied(), "start", rf"^The file {SCRATCH} in the working directory cannot be created \(.+\)\.$")
        self.take(SCRATCH)
        for name in (CHOSEN, ENTRIES):
            self.cannot_be_chosen(self.put_folder, name, CANNOT_BE_CREATED)

    def test_a_link_is_followed(self):
        target = self.directory / "elsewhere"
        target.write_text("old")
        (self.directory / ENTRIES).symlink_to(target)
        replay = self.charted()
        self.assertTrue((self.directory / ENTRIES).is_symlink())
        self.assertIn(b"RANK:", target.read_bytes())
        self.assertEqual(target.stat().st_mode & 0o777, 0o600)
        replay.tell(DOWN)
        self.assertIsNone(replay.over)

    def test_a_link_to_nowhere(self):
        self.cannot_be_chosen(lambda name: self.put_link(name, "/dev/nowhere/list"), ENTRIES, CANNOT_BE_CREATED)

    def test_a_link_to_itself(self):
        (self.directory / SCRATCH).symlink_to(SCRATCH)
        self.fails(self.copied(), "start", rf"^The file {SCRATCH} .* cannot be created \(.+\)\.$")

    def test_a_file_that_is_not_to_be_written(self):
        for name, lines in ((SCRATCH, ()), (CHOSEN, (ROW, BACK, DOWN)), (ENTRIES, (ROW,))):
            for line in lines or [f"click {LIST} cmdExit"]:
                with self.subTest(name, line=line):
                    replay = self.charted(around=BARE)
                    if name == SCRATCH:
                        replay.tell(line)
                        line = "click startup Command1"
                    self.allow(name, 0o400)
                    kept = (self.directory / name).read_bytes()
                    self.fails(replay, line, rf"^The file {name} .* cannot be created \(Permission denied\)\.$")
                    self.assertEqual((self.directory / name).read_bytes(), kept)
                    self.take(name)

    @unittest.skipIf(os.getuid(), "only who may do everything can give a file away")
    def test_a_file_of_another_person_that_all_may_write(self):
        for name in (SCRATCH, CHOSEN, ENTRIES):
            path = self.directory / name
            path.write_text("old")
            os.chown(path, 65534, -1)
            path.chmod(0o666)
        replay = self.charted(around=("setpriv", "--bounding-set=-fowner"))
        self.assertTrue(replay.state(CHARTS)["visible"])
        for name in (SCRATCH, CHOSEN, ENTRIES):
            path = self.directory / name
            self.assertNotEqual(path.read_text(), "old")
            self.assertEqual(path.stat().st_mode & 0o777, 0o666)

    def test_a_disk_that_is_full_at_once(self):
        self.fails(self.copied(around=disk_of(1, self.directory)), "start",
                   rf"^The file {SCRATCH} .* cannot be written \(.+\)\.$")

    def test_a_disk_that_fills_up_on_the_way(self):
        # The capture takes five pages, the key of the row one more, the list three.
        for pages, name in ((5, CHOSEN), (6, ENTRIES), (8, ENTRIES)):
            with self.subTest(name, pages=pages):
                replay = self.copied(around=disk_of(pages, self.directory))
                if not MAY_MOUNT:
                    self.put_full_device(name)
                replay.tell("start")
                self.assertTrue(replay.state(LIST)["visible"])
                self.fails(replay, ROW, rf"^The file {name} .* cannot be written \({FULL}\)\.$")
                self.take(name)

    def test_a_device_that_is_full(self):
        for name in (CHOSEN, ENTRIES):
            self.cannot_be_chosen(self.put_full_device, name, CANNOT_BE_WRITTEN)

    def test_a_device_keeps_its_rights(self):
        ours, terminal = os.openpty()
        self.addCleanup(os.close, ours)
        self.addCleanup(os.close, terminal)
        os.fchmod(terminal, 0o640)
        (self.directory / ENTRIES).symlink_to(os.ttyname(terminal))
        self.fails(self.listed(), ROW, rf"^The file {ENTRIES} .* cannot be read \(.+\)\.$")
        self.assertEqual(os.fstat(terminal).st_mode & 0o777, 0o640)

    def test_a_pipe_that_nobody_reads(self):
        for name in (CHOSEN, ENTRIES):
            self.cannot_be_chosen(self.put_pipe, name, CANNOT_BE_CREATED)


if __name__ == "__main__":
    main()
