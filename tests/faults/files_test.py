"""The small files go away, are damaged, or cannot be written: it ends as it must, with a plain sentence."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "sessions"))
from captures import WHOLE
from replay import Replay

LIST, CHARTS = "frmM2Mpft", "frmM2MpftA"
SCRATCH, ENTRIES, CHOSEN = "pvuscrn.txt", "plotvue.txt", "plotvue1.txt"
END_OF_LIST = {"event": "message", "title": "", "text": "End of list"}


class Files(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory(prefix="plotvue-faults-")
        self.addCleanup(directory.cleanup)
        self.captures = Path(directory.name, "captures")
        self.directory = Path(directory.name, "work")
        self.captures.mkdir()
        self.directory.mkdir()

    def replay(self, around=()):
        replay = Replay(program, self.directory, around=around)
        self.addCleanup(lambda: replay.process.poll() is None and replay.end())
        return replay

    def copied(self, name="monthtomonth", around=()):
        (self.captures / name).write_bytes(WHOLE[name])
        replay = self.replay(around)
        replay.tell(f"clipboard ../captures/{name}")
        return replay

    def listed(self):
        replay = self.copied()
        replay.tell("start")
        return replay

    def charted(self, row=2):
        replay = self.listed()
        replay.tell(f"row {LIST} MSFlexGrid1 {row}")
        return replay

    def fails(self, replay, line, sentence):
        """The line ends the session with the error report."""
        last = replay.tell(line)[-1]
        self.assertEqual(last.get("event"), "error", last)
        self.assertRegex(last["text"], sentence)
        self.assertEqual(replay.end(), (0, ""))

    def ends_the_list(self, replay, line):
        events = replay.tell(line)
        self.assertEqual(events[0], END_OF_LIST)
        self.assertEqual([event["event"] for event in events[1:]], ["hide", "unload"])
        self.assertTrue(replay.state(LIST)["visible"])

    def take(self, name):
        (self.directory / name).unlink()

    def put_folder(self, name):
        (self.directory / name).unlink(missing_ok=True)
        (self.directory / name).mkdir()

    def cut(self, name, keep):
        path = self.directory / name
        path.write_bytes(path.read_bytes()[:keep])

    # What cannot be written

    def test_a_folder_in_the_place_of_each_file(self):
        self.put_folder(SCRATCH)
        self.fails(self.copied(), "start", rf"^The file {SCRATCH} in the working directory cannot be created \(.+\)\.$")
        (self.directory / SCRATCH).rmdir()
        for name in (CHOSEN, ENTRIES):
            with self.subTest(name):
                replay = self.listed()
                self.put_folder(name)
                self.fails(replay, f"row {LIST} MSFlexGrid1 1", rf"^The file {name} .* cannot be created \(.+\)\.$")
                (self.directory / name).rmdir()

    def test_a_link_is_followed(self):
        target = self.directory / "elsewhere"
        target.write_text("old")
        (self.directory / ENTRIES).symlink_to(target)
        replay = self.charted()
        self.assertTrue((self.directory / ENTRIES).is_symlink())
        self.assertIn(b"RANK:", target.read_bytes())
        self.assertEqual(target.stat().st_mode & 0o777, 0o600)
        replay.tell(f"click {CHARTS} cmdNext")
        self.assertIsNone(replay.over)

    def test_a_link_to_nowhere(self):
        (self.directory / ENTRIES).symlink_to("/dev/nowhere/list")
        self.fails(self.listed(), f"row {LIST} MSFlexGrid1 1", rf"^The file {ENTRIES} .* cannot be created \(.+\)\.$")

    def test_a_link_to_itself(self):
        (self.directory / SCRATCH).symlink_to(SCRATCH)
        self.fails(self.copied(), "start", rf"^The file {SCRATCH} .* cannot be created \(.+\)\.$")

    def test_a_full_disk(self):
        disk = ("unshare", "--map-root-user", "--mount", "sh", "-c",
                'mount -t tmpfs -o size=4k none . && cd "$PWD" && exec "$0" "$@"')
        if subprocess.run([*disk, "true"], cwd=self.directory, check=False, stderr=subprocess.DEVNULL).returncode:
            # Not allowed here: a limit to the size of files runs into the same end.
            disk = ("prlimit", "--fsize=4096", "--", "env", "--ignore-signal=XFSZ")
        self.fails(self.copied(around=disk), "start", rf"^The file {SCRATCH} .* cannot be written \(.+\)\.$")

    # What cannot be read, or says something else

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
        self.ends_the_list(replay, f"click {CHARTS} cmdNext")

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
                self.ends_the_list(replay, f"click {CHARTS} cmdNext")

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

    # Two at once

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
        self.ends_the_list(one, f"click {CHARTS} cmdNext")
        self.assertTrue(one.state(LIST)["visible"])
        self.assertIsNone(two.over)


if __name__ == "__main__":
    program = Path(sys.argv.pop()).resolve()
    unittest.main(verbosity=2)
