"""A replayed session, and what may befall the small files in the midst of it."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "replay"))
from replay import SAMPLES, Replay  # noqa: E402

LIST, CHARTS = "frmM2Mpft", "frmM2MpftA"
SCRATCH, ENTRIES, CHOSEN = "pvuscrn.txt", "plotvue.txt", "plotvue1.txt"
CHOOSING = [f"row {LIST} MSFlexGrid1 1", f"click {CHARTS} cmdBack", f"click {CHARTS} cmdNext"]
FULL = "No space left on device"
END_OF_LIST = {"event": "message", "title": "", "text": "End of list"}

MOUNTING = ("unshare", "--map-root-user", "--mount", "sh", "-c")
MAY_MOUNT = not subprocess.run([*MOUNTING, "mount -t tmpfs none /mnt"], check=False,
                               stderr=subprocess.DEVNULL).returncode
# Whoever may do everything lays that down: what a file's mode forbids is forbidden then.
BARE = ("setpriv", "--bounding-set=-dac_override,-dac_read_search") if os.getuid() == 0 else ()


def disk_of(pages, directory):
    """What makes the directory a disk of that many pages of 4 KB."""
    if MAY_MOUNT:
        return (*MOUNTING, f'mount -t tmpfs -o size={4 * pages}k none "{directory}" && cd "{directory}" && exec "$0" "$@"')
    # A limit to the size of files runs into the same end.
    return ("prlimit", f"--fsize={4096 * pages}", "--", "env", "--ignore-signal=XFSZ")


class Files(unittest.TestCase):
    program = None

    def setUp(self):
        directory = tempfile.TemporaryDirectory(prefix="plotvue-faults-")
        self.addCleanup(directory.cleanup)
        self.captures = Path(directory.name, "captures")
        self.directory = Path(directory.name, "work")
        self.captures.mkdir()
        self.directory.mkdir()

    def replay(self, around=()):
        replay = Replay(self.program, self.directory, around=around)
        self.addCleanup(lambda: replay.process.poll() is None and replay.end())
        return replay

    def copied(self, name="monthtomonth", around=()):
        shutil.copy(SAMPLES / f"{name}.txt", self.captures / name)
        replay = self.replay(around)
        replay.tell(f"clipboard ../captures/{name}")
        return replay

    def listed(self, around=()):
        replay = self.copied(around=around)
        replay.tell("start")
        return replay

    def charted(self, row=2, around=()):
        replay = self.listed(around)
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

    def put_pipe(self, name):
        (self.directory / name).unlink(missing_ok=True)
        os.mkfifo(self.directory / name)

    def put_full_device(self, name):
        (self.directory / name).unlink(missing_ok=True)
        (self.directory / name).symlink_to("/dev/full")
        if os.getuid() == 0:  # the device is everybody's: even a program that is wrong must not change it for good
            self.addCleanup(os.chmod, "/dev/full", 0o666)

    def allow(self, name, mode):
        (self.directory / name).chmod(mode)

    def cut(self, name, keep):
        path = self.directory / name
        path.write_bytes(path.read_bytes()[:keep])
