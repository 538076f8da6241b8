"""Replayed sessions, and damage to the small files in the middle of them."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from tests.replay.replay import SAMPLES, Replay

LIST, CHARTS = "frmM2Mpft", "frmM2MpftA"
SCRATCH, ENTRIES, CHOSEN = "pvuscrn.txt", "plotvue.txt", "plotvue1.txt"
ROW, BACK, DOWN = f"row {LIST} MSFlexGrid1 1", f"click {CHARTS} cmdBack", f"click {CHARTS} cmdNext"
FULL = "No space left on device"
END_OF_LIST = {"event": "message", "title": "", "text": "End of list"}

MOUNTING = ("unshare", "--map-root-user", "--mount", "sh", "-c")
MAY_MOUNT = not subprocess.run([*MOUNTING, "mount -t tmpfs none /mnt"], check=False,
                               stderr=subprocess.DEVNULL).returncode
# Root gives up its rights: then what a file's mode forbids is forbidden.
BARE = ("setpriv", "--bounding-set=-dac_override,-dac_read_search") if os.getuid() == 0 else ()


def disk_of(pages, directory):
    """The command that makes the directory a disk of that many pages of 4 KB for the command that follows it."""
    if MAY_MOUNT:
        mount = f'mount -t tmpfs -o size={4 * pages}k none "{directory}"'
        return (*MOUNTING, f'{mount} && cd "{directory}" && exec "$0" "$@"')
    # A limit to the size of files has the same effect.
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
        """Takes the file, or what was put in its place, away."""
        path = self.directory / name
        if path.is_dir():
            path.rmdir()
        else:
            path.unlink(missing_ok=True)

    def put(self, name, content):
        (self.directory / name).write_bytes(content)

    def put_folder(self, name):
        self.take(name)
        (self.directory / name).mkdir()

    def put_pipe(self, name):
        self.take(name)
        os.mkfifo(self.directory / name)

    def put_link(self, name, target):
        self.take(name)
        (self.directory / name).symlink_to(target)

    def put_full_device(self, name):
        self.put_link(name, "/dev/full")
        if os.getuid() == 0:  # all programs share the device: even a faulty PlotVue must not change its rights for good
            self.addCleanup(os.chmod, "/dev/full", 0o666)

    def allow(self, name, mode):
        (self.directory / name).chmod(mode)

    def cut(self, name, keep):
        path = self.directory / name
        path.write_bytes(path.read_bytes()[:keep])


def main():
    """Runs the tests of the file that is run; its last argument is the replay program."""
    Files.program = Path(sys.argv.pop()).resolve()
    unittest.main(verbosity=2)
